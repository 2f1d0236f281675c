#include "app/Commands.h"

#include "app/ListCommands.h"
#include "app/PlayCommands.h"
#include "app/Player.h"
#include "app/Snapshots.h"
#include "app/VideoChoices.h"
#include "base/Words.h"

#include <algorithm>
#include <array>
#include <vector>

namespace zentaro {

namespace {

constexpr int kStep = 5000;      // ms
constexpr int kLongStep = 30000; // ms
constexpr int kVolumeStep = 5;   // percent

constexpr Keys<1> kCtrlPageDown{ "Ctrl+PgDown" }, kCtrlPageUp{ "Ctrl+PgUp" };
constexpr Keys<1> kCtrlD{ "Ctrl+D" }, kCtrlF7{ "Ctrl+F7" }, kCtrlF8{ "Ctrl+F8" }, kCtrlF{ "Ctrl+F" },
    kCtrlL{ "Ctrl+L" }, kCtrlLeft{ "Ctrl+Left" }, kCtrlM{ "Ctrl+M" }, kCtrlO{ "Ctrl+O" }, kCtrlP{ "Ctrl+P" },
    kCtrlR{ "Ctrl+R" }, kCtrlReturn{ "Ctrl+Return" }, kCtrlRight{ "Ctrl+Right" }, kCtrlS{ "Ctrl+S" },
    kCtrlShiftM{ "Ctrl+Shift+M" }, kCtrlShiftP{ "Ctrl+Shift+P" }, kDown{ "Down" }, kEscape{ "Esc" }, kF1{ "F1" },
    kF6{ "F6" }, kF10{ "F10" }, kLeft{ "Left" }, kM{ "M" }, kPageDown{ "PgDown" }, kPageUp{ "PgUp" }, kRight{ "Right" },
    kS{ "S" }, kShiftF6{ "Shift+F6" }, kShiftF10{ "Shift+F10" }, kShiftLeft{ "Shift+Left" },
    kShiftRight{ "Shift+Right" }, kSpace{ "Space" }, kT{ "T" }, kUp{ "Up" };
constexpr Keys<2> kEnter{ "Return", "Enter" }, kExit{ "Ctrl+X", "Ctrl+Q" }, kF{ "F", "F11" }, kFaster{ "Ctrl+Up", "]" },
    kSlower{ "Ctrl+Down", "[" };
// The first one is the key of the menu's item; these have none of its own.
constexpr Keys<2> kAbout{ "", "Shift+F1" }, kAdd{ "", "Ctrl+Shift+O" }, kOptions{ "", "Ctrl+," }, kRemove{ "", "Del" };
constexpr Keys<10> kDigits{ "0", "1", "2", "3", "4", "5", "6", "7", "8", "9" };

bool IsLoaded(const Player& player)
{
    return player.State().mediaControlsEnabled;
}

template <std::int32_t Mode> bool HasPlayMode(const Player& player)
{
    return player.Settings().PlayMode == Mode;
}

template <std::int32_t Mode> bool HasRepeatMode(const Player& player)
{
    return player.Settings().RepeatMode == Mode;
}

template <std::int32_t Mode> void SetRepeatMode(Player& player, int)
{
    player.Sequence().SetRepeatMode(Mode);
}

template <std::int16_t Action> void DoAfter(Player& player, int)
{
    player.Sequence().DoAfter(Action);
}

template <std::int16_t Action> bool IsAfterPlay(const Player& player)
{
    return player.Sequence().AfterPlaying().AfterPlayAction() == Action;
}

/// In the menu of a disc the key goes to its buttons.
template <DiscKey Key, int Milliseconds> void Seek(Player& player, int)
{
    if (!player.Discs().Navigate(Key))
        player.Transporting().SeekBy(Milliseconds);
}

template <DiscKey Key, int Percent> void TurnVolume(Player& player, int)
{
    if (player.Discs().Navigate(Key))
        return;
    const auto before = player.State().volume;
    player.Transporting().SetVolume(before + Percent);
    // A change shows by itself; at an end the key would seem dead.
    if (player.State().volume == before)
        player.Face().window->ShowNote(Words("Volume %1 %", { std::to_string(before) }));
}

template <int Direction> void StepChapter(Player& player, int)
{
    if (const auto caption = player.Discs().StepChapter(Direction); !caption.empty())
        player.Face().window->ShowNote(caption);
}

bool HasChapters(const Player& player)
{
    return IsLoaded(player) && player.State().chapters.size() > 1;
}

template <WindowAction Action> void Ask(Player& player, int)
{
    player.Face().window->Do(Action);
}

void TellTime(Player& player)
{
    player.Face().window->ShowNote(PlaceText(player.State()));
}

// "Remove" itself stays: on an empty list it does nothing.
void DisableListCommands(Player& player)
{
    player.BothMenus().SmartMenuXP1.SetEnabled({ "RemoveAll", "Next", "Previous" }, false);
}

/// One of several of which one is chosen.
constexpr Command OneOf(std::string_view id, std::string_view caption, void (*run)(Player&, int),
    bool (*isChecked)(const Player&), std::string_view name)
{
    return { .id = id, .caption = caption, .run = run, .isChecked = isChecked, .name = name };
}

constexpr std::array kCommands{
    // The command tree's, in its order.
    Command{ "OpenFile", "Open Media File...", kCtrlO, [](Player& player, int) { player.Files().OpenFiles(false); } },
    Command{ "History", "", {}, [](Player& player, int which) { player.PlayHistoryItem(which); } },
    Command{ "Exit", "E&xit", kExit, [](Player& player, int) { player.Face().window->CloseWindow(); } },
    Command{ "PlayPause", "Play/Pause", kCtrlP, [](Player& player, int) { player.Sequence().PlayPause(); } },
    Command{ "Stop", "Stop", kCtrlS, [](Player& player, int) { player.Transporting().cmdStopClick(); }, IsLoaded },
    OneOf(
        "PMNormal", "&Normal", [](Player& player, int) { player.Sequence().PBNormal(); }, HasPlayMode<kPlayNormal>,
        "Play Mode: Normal"),
    OneOf(
        "PMContinuous", "&Continuous", [](Player& player, int) { player.Sequence().PBCont(); },
        HasPlayMode<kPlayContinuous>, "Play Mode: Continuous"),
    OneOf(
        "PMShuffle", "&Shuffle", [](Player& player, int) { player.Sequence().PBShuffle(); }, HasPlayMode<kPlayShuffle>,
        "Play Mode: Shuffle"),
    OneOf("RMNoRepeat", "&No Repeat", SetRepeatMode<kNoRepeat>, HasRepeatMode<kNoRepeat>, "Repeat Mode: No Repeat"),
    OneOf("RMSingleRepeat", "&Single Repeat", SetRepeatMode<kRepeatSingle>, HasRepeatMode<kRepeatSingle>,
        "Repeat Mode: Single Repeat"),
    OneOf(
        "RMRepeatAll", "&Repeat All", SetRepeatMode<kRepeatAll>, HasRepeatMode<kRepeatAll>, "Repeat Mode: Repeat All"),
    Command{ "FullScreen", "Full Screen", kCtrlF, [](Player& player, int) { player.Window().cmdFulScreenClick(); },
        IsLoaded },
    Command{
        "IncreaseSpeed", "Increase Speed", kFaster, [](Player& player, int) { player.Transporting().IncreaseRate(); } },
    Command{
        "DecreaseSpeed", "Decrease Speed", kSlower, [](Player& player, int) { player.Transporting().DecreaseRate(); } },
    Command{ "ResetSpeed", "Reset Speed", kCtrlR, [](Player& player, int) { player.Transporting().ResetRate(); } },
    OneOf("Donothing", "Do nothing", DoAfter<0>, IsAfterPlay<0>, "After Playing: Do nothing"),
    OneOf("ExitZentaro", "Exit Zentaro", DoAfter<1>, IsAfterPlay<1>, "After Playing: Exit Zentaro"),
    OneOf("RestartTheComputer", "Restart the Computer", DoAfter<2>, IsAfterPlay<2>,
        "After Playing: Restart the Computer"),
    OneOf("ShutdownTheComputer", "Shutdown the Computer", DoAfter<3>, IsAfterPlay<3>,
        "After Playing: Shutdown the Computer"),
    Command{ "AddVideoFile", "Add Media File(s)...", kAdd, [](Player& player, int) { player.Files().AddVideoFile(); } },
    Command{ .id = "Remove",
        .caption = "Remove",
        .keys = kRemove,
        .run =
            [](Player& player, int) {
                player.Editing().Remove();
                if (player.Entries().Count() == 0)
                    DisableListCommands(player);
            },
        .place = KeyPlace::List,
        .name = "Remove the Selected Entry" },
    Command{ "RemoveAll", "Remove All", {},
        [](Player& player, int) {
            player.Editing().RemoveAll();
            DisableListCommands(player);
        } },
    Command{ "Next", "Next", kPageDown, [](Player& player, int) { player.Sequence().cmdNextClick(); }, IsLoaded },
    Command{
        "Previous", "Previous", kPageUp, [](Player& player, int) { player.Sequence().cmdPreviousClick(); }, IsLoaded },
    Command{ "Options", "Options", kOptions, [](Player& player, int) { player.Window().ShowOptions(); } },
    Command{ "About", "&About", kAbout, [](Player& player, int) { player.Window().ShowAbout(); } },
    Command{ "HelpTopics", "&Help Topics", kF1, [](Player& player, int) { player.Face().dialogs->ShowHelp(); } },

    // The buttons', and keys as people know them from other players.
    Command{ .id = "Play",
        .caption = "Play",
        .keys = kCtrlReturn,
        .run = [](Player& player, int) { player.Sequence().CMDPlayClick(); },
        .name = "Play from the Start" },
    Command{ "PlayOrPause", "Play or Pause", kSpace, [](Player& player, int) { player.Sequence().PlayOrPause(); } },
    Command{ .id = "Pause",
        .caption = "Pause",
        .run = [](Player& player, int) { player.Transporting().CMDPauseClick(); },
        .isAvailable = IsLoaded,
        .shownKeyOf = "PlayOrPause" },
    Command{ .id = "PlaySelected",
        .caption = "Play the Selected Entry",
        .keys = kEnter,
        .run =
            [](Player& player, int) {
                if (player.Entries().SelectedEntry())
                    player.Sequence().CMDPlayClick();
            },
        .place = KeyPlace::List },
    Command{ .id = "PressOnVideo",
        .caption = "Press the Disc's Button, or Fill the Screen",
        .keys = kEnter,
        .run =
            [](Player& player, int) {
                const bool canFill = IsLoaded(player) || player.Face().window->IsFullScreen();
                if (!player.Discs().Navigate(DiscKey::Activate) && canFill)
                    player.Window().ToggleFullScreen();
            },
        .place = KeyPlace::Video },
    Command{ .id = "Rewind",
        .caption = "Rewind",
        .keys = kCtrlLeft,
        .run = [](Player& player, int) { player.Transporting().RewindPressed(); },
        .isAvailable = IsLoaded,
        .release = [](Player& player) { player.Transporting().RewindReleased(); },
        .name = "Rewind While Held" },
    Command{ .id = "FastForward",
        .caption = "Fast forward",
        .keys = kCtrlRight,
        .run = [](Player& player, int) { player.Transporting().cmdffMouseDown(); },
        .isAvailable = IsLoaded,
        .release = [](Player& player) { player.Transporting().cmdffMouseUp(); },
        .name = "Fast Forward While Held" },
    Repeated("SeekBack", "5 Seconds Back", kLeft, Seek<DiscKey::Left, -kStep>, IsLoaded),
    Repeated("SeekForward", "5 Seconds Forward", kRight, Seek<DiscKey::Right, kStep>, IsLoaded),
    Repeated(
        "SeekFarBack", "30 Seconds Back", kShiftLeft,
        [](Player& player, int) { player.Transporting().SeekBy(-kLongStep); }, IsLoaded),
    Repeated(
        "SeekFarForward", "30 Seconds Forward", kShiftRight,
        [](Player& player, int) { player.Transporting().SeekBy(kLongStep); }, IsLoaded),
    Command{ "JumpToTenth", "Jump to That Tenth of the Item", kDigits,
        [](Player& player, int which) { player.Transporting().Seek(which / 10.0); }, IsLoaded },
    Command{ "NextChapter", "Next Chapter", kCtrlPageDown, StepChapter<1>, HasChapters },
    Command{ "PreviousChapter", "Previous Chapter", kCtrlPageUp, StepChapter<-1>, HasChapters },
    Repeated("Louder", "Louder", kUp, TurnVolume<DiscKey::Up, kVolumeStep>),
    Repeated("Quieter", "Quieter", kDown, TurnVolume<DiscKey::Down, -kVolumeStep>),
    Command{ .id = "Mute",
        .caption = "Mute",
        .keys = kM,
        .run = [](Player& player, int) { player.Transporting().cmdMuteClick(); },
        .isChecked = [](const Player& player) { return player.State().isMuted; } },
    Command{ .id = "ToggleFullScreen",
        .caption = "&Full Screen",
        .keys = kF,
        .run = [](Player& player, int) { player.Window().ToggleFullScreen(); },
        .isChecked = [](const Player& player) { return player.Face().window->IsFullScreen(); },
        .name = "Full Screen On or Off" },
    Command{ "LeaveFullScreen", "Leave Full Screen", kEscape,
        [](Player& player, int) { player.Window().LeaveFullScreen(); } },
    Command{ "Snapshot", "S&napshot", kS, [](Player& player, int) { player.TakeSnapshot(); },
        [](const Player& player) { return player.CanTakeSnapshot(); } },
    Command{ "LoadSubtitles", "&Load File...", {}, [](Player& player, int) { LoadSubtitleFile(player); },
        [](const Player& player) { return player.State().hasVideoOutput; } },
    Command{ .id = "PlayList",
        .caption = "Playlist",
        .keys = kCtrlL,
        .run = [](Player& player, int) { player.Window().cmdPlayListClick(); },
        .name = "Show or Hide the Playlist" },
    Command{ .id = "Dvd",
        .caption = "DVD",
        .keys = kCtrlD,
        .run = [](Player& player, int) { player.Face().window->PopupMenu("mnuOpenDVD"); },
        .name = "Discs" },

    // The window's.
    Command{ "TellTime", "Say Where It Is", kT, [](Player& player, int) { TellTime(player); }, IsLoaded },
    Command{ .id = "CommandList",
        .caption = "Find a Command...",
        .keys = kCtrlShiftP,
        .run = [](Player& player, int) { player.Face().dialogs->ShowCommandList(); },
        .name = "-" },
    Command{ "ContextMenu", "Menu of What Has the Focus", kShiftF10, Ask<WindowAction::ContextMenu> },
    Command{ "MenuStrip", "First Menu", kF10, Ask<WindowAction::OpenMenuStrip> },
    Command{ "NextArea", "To the Next Part of the Window", kF6, Ask<WindowAction::NextArea> },
    Command{ "PreviousArea", "To the Part of the Window Before", kShiftF6, Ask<WindowAction::PreviousArea> },
    Command{ "Minimize", "Minimize", kCtrlM, Ask<WindowAction::Minimize> },
    Command{ .id = "Maximize",
        .caption = "Maximize",
        .keys = kCtrlShiftM,
        .run = Ask<WindowAction::ToggleMaximized>,
        .name = "Maximize or Restore" },
    Command{ "MoveWindow", "Move the Window by the Arrows", kCtrlF7, Ask<WindowAction::Move> },
    Command{ "ResizeWindow", "Resize the Window by the Arrows", kCtrlF8, Ask<WindowAction::Resize> },

    // The classic tree's, which leave the command tree's items as they are.
    Command{ .id = "AddFiles",
        .caption = "Add Media File(s)...",
        .run = [](Player& player, int) { player.Files().OpenFiles(true); },
        .name = "-" },
    Command{ .id = "RemoveEntry",
        .caption = "Remove",
        .run = [](Player& player, int) { player.Editing().Remove(); },
        .name = "-" },
    Command{ .id = "RemoveEntries",
        .caption = "Remove All",
        .run = [](Player& player, int) { player.Editing().RemoveAll(); },
        .name = "-" },
    Command{ "PlayDisc", "", {}, [](Player& player, int which) { player.Discs().dvdsList_Click(which); } },
};

} // namespace

std::span<const Command> AllCommands()
{
    static const auto all = [] {
        std::vector<Command> commands(kCommands.begin(), kCommands.end());
        commands.insert(commands.end(), PlayCommands().begin(), PlayCommands().end());
        commands.insert(commands.end(), ListCommands().begin(), ListCommands().end());
        return commands;
    }();
    return all;
}

const Command* FindCommand(std::string_view id)
{
    const auto all = AllCommands();
    const auto at = std::ranges::find(all, id, &Command::id);
    return at == all.end() ? nullptr : &*at;
}

void RunCommand(Player& player, std::string_view id, int which)
{
    if (const auto* const command = FindCommand(id))
        command->run(player, which);
}

std::string ListedName(const Command& command)
{
    if (command.name == "-")
        return {};
    std::string name(command.name.empty() ? command.caption : command.name);
    std::erase(name, '&');
    return name;
}

} // namespace zentaro
