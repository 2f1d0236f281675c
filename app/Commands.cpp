#include "app/Commands.h"

#include "app/ListCommands.h"
#include "app/PlayCommands.h"
#include "app/Player.h"
#include "app/Snapshots.h"
#include "app/VideoChoices.h"

#include <algorithm>
#include <array>
#include <vector>

namespace zentaro {

namespace {

constexpr int kStep = 5000;      // ms
constexpr int kLongStep = 30000; // ms
constexpr int kVolumeStep = 5;   // percent

template <std::size_t Count> using Keys = std::array<std::string_view, Count>;

constexpr Keys<1> kCtrlPageDown{ "Ctrl+PgDown" }, kCtrlPageUp{ "Ctrl+PgUp" };
constexpr Keys<1> kCtrlF{ "Ctrl+F" }, kCtrlO{ "Ctrl+O" }, kCtrlP{ "Ctrl+P" }, kCtrlR{ "Ctrl+R" }, kCtrlS{ "Ctrl+S" },
    kCtrlX{ "Ctrl+X" }, kEscape{ "Esc" }, kF{ "F" }, kF1{ "F1" }, kLeft{ "Left" }, kM{ "M" }, kPageDown{ "PgDown" },
    kPageUp{ "PgUp" }, kRight{ "Right" }, kS{ "S" }, kShiftLeft{ "Shift+Left" }, kShiftRight{ "Shift+Right" },
    kSpace{ "Space" }, kUp{ "Up" }, kDown{ "Down" };
constexpr Keys<2> kFaster{ "Ctrl+Up", "]" }, kSlower{ "Ctrl+Down", "[" }, kEnter{ "Return", "Enter" };
constexpr Keys<2> kDelete{ "", "Del" }; // the menu's item has no key of its own
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
    if (!player.Discs().Navigate(Key))
        player.Transporting().SetVolume(player.State().volume + Percent);
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

// "Remove" itself stays: on an empty list it does nothing.
void DisableListCommands(Player& player)
{
    player.BothMenus().SmartMenuXP1.SetEnabled({ "RemoveAll", "Next", "Previous" }, false);
}

constexpr std::array kCommands{
    // The command tree's, in its order.
    Command{ "OpenFile", "Open Media File...", kCtrlO, [](Player& player, int) { player.Files().OpenFiles(false); } },
    Command{ "History", "", {}, [](Player& player, int which) { player.PlayHistoryItem(which); } },
    Command{ "Exit", "E&xit", kCtrlX, [](Player& player, int) { player.Face().window->CloseWindow(); } },
    Command{ "PlayPause", "Play/Pause", kCtrlP, [](Player& player, int) { player.Sequence().PlayPause(); } },
    Command{ "Stop", "Stop", kCtrlS, [](Player& player, int) { player.Transporting().cmdStopClick(); }, IsLoaded },
    Command{ "PMNormal", "&Normal", {}, [](Player& player, int) { player.Sequence().PBNormal(); }, nullptr,
        HasPlayMode<kPlayNormal> },
    Command{ "PMContinuous", "&Continuous", {}, [](Player& player, int) { player.Sequence().PBCont(); }, nullptr,
        HasPlayMode<kPlayContinuous> },
    Command{ "PMShuffle", "&Shuffle", {}, [](Player& player, int) { player.Sequence().PBShuffle(); }, nullptr,
        HasPlayMode<kPlayShuffle> },
    Command{ "RMNoRepeat", "&No Repeat", {}, SetRepeatMode<kNoRepeat>, nullptr, HasRepeatMode<kNoRepeat> },
    Command{
        "RMSingleRepeat", "&Single Repeat", {}, SetRepeatMode<kRepeatSingle>, nullptr, HasRepeatMode<kRepeatSingle> },
    Command{ "RMRepeatAll", "&Repeat All", {}, SetRepeatMode<kRepeatAll>, nullptr, HasRepeatMode<kRepeatAll> },
    Command{ "FullScreen", "Full Screen", kCtrlF, [](Player& player, int) { player.Window().cmdFulScreenClick(); },
        IsLoaded },
    Command{
        "IncreaseSpeed", "Increase Speed", kFaster, [](Player& player, int) { player.Transporting().IncreaseRate(); } },
    Command{
        "DecreaseSpeed", "Decrease Speed", kSlower, [](Player& player, int) { player.Transporting().DecreaseRate(); } },
    Command{ "ResetSpeed", "Reset Speed", kCtrlR, [](Player& player, int) { player.Transporting().ResetRate(); } },
    Command{ "Donothing", "Do nothing", {}, DoAfter<0>, nullptr, IsAfterPlay<0> },
    Command{ "ExitZentaro", "Exit Zentaro", {}, DoAfter<1>, nullptr, IsAfterPlay<1> },
    Command{ "RestartTheComputer", "Restart the Computer", {}, DoAfter<2>, nullptr, IsAfterPlay<2> },
    Command{ "ShutdownTheComputer", "Shutdown the Computer", {}, DoAfter<3>, nullptr, IsAfterPlay<3> },
    Command{ "AddVideoFile", "Add Media File(s)...", {}, [](Player& player, int) { player.Files().AddVideoFile(); } },
    Command{ "Remove", "Remove", kDelete,
        [](Player& player, int) {
            player.Editing().Remove();
            if (player.Entries().Count() == 0)
                DisableListCommands(player);
        } },
    Command{ "RemoveAll", "Remove All", {},
        [](Player& player, int) {
            player.Editing().RemoveAll();
            DisableListCommands(player);
        } },
    Command{ "Next", "Next", kPageDown, [](Player& player, int) { player.Sequence().cmdNextClick(); }, IsLoaded },
    Command{
        "Previous", "Previous", kPageUp, [](Player& player, int) { player.Sequence().cmdPreviousClick(); }, IsLoaded },
    Command{ "Options", "Options", {}, [](Player& player, int) { player.Window().ShowOptions(); } },
    Command{ "About", "&About", {}, [](Player& player, int) { player.Window().ShowAbout(); } },
    Command{ "HelpTopics", "&Help Topics", kF1, [](Player& player, int) { player.Face().dialogs->ShowHelp(); } },

    // The buttons', and keys as people know them from other players.
    Command{ "Play", "Play", {}, [](Player& player, int) { player.Sequence().CMDPlayClick(); } },
    Command{ "PlayOrPause", "Play or Pause", kSpace, [](Player& player, int) { player.Sequence().PlayOrPause(); } },
    Command{ "Pause", "Pause", {}, [](Player& player, int) { player.Transporting().CMDPauseClick(); }, IsLoaded,
        nullptr, nullptr, false, "Space" },
    Command{ "PlaySelected", "Play the Selected Entry", kEnter,
        [](Player& player, int) {
            if (!player.Discs().Navigate(DiscKey::Activate) && player.Entries().SelectedEntry())
                player.Sequence().CMDPlayClick();
        } },
    Command{ "Rewind", "Rewind", {}, [](Player& player, int) { player.Transporting().RewindPressed(); }, IsLoaded,
        nullptr, [](Player& player) { player.Transporting().RewindReleased(); }, false, "hold" },
    Command{ "FastForward", "Fast forward", {}, [](Player& player, int) { player.Transporting().cmdffMouseDown(); },
        IsLoaded, nullptr, [](Player& player) { player.Transporting().cmdffMouseUp(); }, false, "hold" },
    Command{ "SeekBack", "5 Seconds Back", kLeft, Seek<DiscKey::Left, -kStep>, IsLoaded, nullptr, nullptr, true },
    Command{
        "SeekForward", "5 Seconds Forward", kRight, Seek<DiscKey::Right, kStep>, IsLoaded, nullptr, nullptr, true },
    Command{ "SeekFarBack", "30 Seconds Back", kShiftLeft,
        [](Player& player, int) { player.Transporting().SeekBy(-kLongStep); }, IsLoaded, nullptr, nullptr, true },
    Command{ "SeekFarForward", "30 Seconds Forward", kShiftRight,
        [](Player& player, int) { player.Transporting().SeekBy(kLongStep); }, IsLoaded, nullptr, nullptr, true },
    Command{ "JumpToTenth", "Jump to That Tenth of the Item", kDigits,
        [](Player& player, int which) { player.Transporting().Seek(which / 10.0); }, IsLoaded },
    Command{ "NextChapter", "Next Chapter", kCtrlPageDown, StepChapter<1>, HasChapters },
    Command{ "PreviousChapter", "Previous Chapter", kCtrlPageUp, StepChapter<-1>, HasChapters },
    Command{ "Louder", "Louder", kUp, TurnVolume<DiscKey::Up, kVolumeStep>, nullptr, nullptr, nullptr, true },
    Command{ "Quieter", "Quieter", kDown, TurnVolume<DiscKey::Down, -kVolumeStep>, nullptr, nullptr, nullptr, true },
    Command{ "Mute", "Mute", kM, [](Player& player, int) { player.Transporting().cmdMuteClick(); }, nullptr,
        [](const Player& player) { return player.State().isMuted; } },
    Command{ "ToggleFullScreen", "&Full Screen", kF, [](Player& player, int) { player.Window().ToggleFullScreen(); },
        nullptr, [](const Player& player) { return player.Face().window->IsFullScreen(); } },
    Command{ "LeaveFullScreen", "Leave Full Screen", kEscape,
        [](Player& player, int) { player.Window().LeaveFullScreen(); } },
    Command{ "Snapshot", "S&napshot", kS, [](Player& player, int) { player.TakeSnapshot(); },
        [](const Player& player) { return player.CanTakeSnapshot(); } },
    Command{ "LoadSubtitles", "&Load File...", {}, [](Player& player, int) { LoadSubtitleFile(player); },
        [](const Player& player) { return player.State().hasVideoOutput; } },
    Command{ "PlayList", "Playlist", {}, [](Player& player, int) { player.Window().cmdPlayListClick(); } },
    Command{ "Dvd", "DVD", {}, [](Player& player, int) { player.Face().window->PopupMenu("mnuOpenDVD"); } },

    // The classic tree's, which leave the command tree's items as they are.
    Command{ "AddFiles", "Add Media File(s)...", {}, [](Player& player, int) { player.Files().OpenFiles(true); } },
    Command{ "RemoveEntry", "Remove", {}, [](Player& player, int) { player.Editing().Remove(); } },
    Command{ "RemoveEntries", "Remove All", {}, [](Player& player, int) { player.Editing().RemoveAll(); } },
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

std::string_view ShownKey(const Command& command)
{
    if (!command.shownKey.empty() || command.keys.empty())
        return command.shownKey;
    return command.keys.front();
}

} // namespace zentaro
