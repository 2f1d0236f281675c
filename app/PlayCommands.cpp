#include "app/PlayCommands.h"

#include "app/Player.h"
#include "base/Words.h"

#include <array>

namespace zentaro {

namespace {

constexpr Keys<1> kB{ "B" }, kCtrlE{ "Ctrl+E" }, kCtrlMinus{ "Ctrl+-" }, kCtrlPlus{ "Ctrl++" },
    kCtrlShiftDown{ "Ctrl+Shift+Down" }, kCtrlShiftUp{ "Ctrl+Shift+Up" }, kCtrlT{ "Ctrl+T" }, kG{ "G" }, kH{ "H" },
    kK{ "K" }, kMinus{ "-" }, kPeriod{ "." }, kPlus{ "+" }, kR{ "R" }, kShiftH{ "Shift+H" }, kShiftK{ "Shift+K" };

constexpr int kShift = 50;   // ms
constexpr int kBoost = 10;   // percent
constexpr int kLetters = 10; // percent

bool IsLoaded(const Player& player)
{
    return player.State().mediaControlsEnabled;
}

bool HasVideo(const Player& player)
{
    return player.State().hasVideoOutput;
}

template <int Steps> void StepRate(Player& player, int)
{
    player.Transporting().StepRate(Steps);
}

template <void (PlayTools::*Act)(int), int Amount> void Change(Player& player, int)
{
    (player.Tools().*Act)(Amount);
}

template <void (PlayTools::*Act)()> void Do(Player& player, int)
{
    (player.Tools().*Act)();
}

template <Choice Kind> constexpr Command Switching(const char* id, const char* caption)
{
    return { .id = id,
        .caption = caption,
        .run =
            [](Player& player, int) {
                player.Choices().Set(Kind, !player.Choices().Has(Kind));
                player.Face().window->StateChanged();
            },
        .isChecked = [](const Player& player) { return player.Choices().Has(Kind); } };
}

constexpr std::array kCommands{
    Repeated("FasterALittle", "A Little &Faster", kCtrlShiftUp, StepRate<1>, IsLoaded),
    Repeated("SlowerALittle", "A Little &Slower", kCtrlShiftDown, StepRate<-1>, IsLoaded),
    Repeated("NextFrame", "Next Pi&cture", kPeriod, Do<&PlayTools::NextFrame>, HasVideo),
    Command{ "MarkLoop", "Again and Again from Here, to Here", kB, Do<&PlayTools::MarkLoop>, IsLoaded },
    Command{ "JumpToTime", "&Go to a Time...", kG, Do<&PlayTools::AskForTime>, IsLoaded },
    Repeated("SubtitlesLater", "Subtitles Later", kH, Change<&PlayTools::ShiftSubtitles, kShift>, HasVideo),
    Repeated("SubtitlesEarlier", "Subtitles Earlier", kShiftH, Change<&PlayTools::ShiftSubtitles, -kShift>, HasVideo),
    Command{ "LargerSubtitles", "Larger Subtitles", kCtrlPlus, Change<&PlayTools::ScaleSubtitles, kLetters>, HasVideo },
    Command{
        "SmallerSubtitles", "Smaller Subtitles", kCtrlMinus, Change<&PlayTools::ScaleSubtitles, -kLetters>, HasVideo },
    Repeated("SoundLater", "Sound Later", kK, Change<&PlayTools::ShiftSound, kShift>, IsLoaded),
    Repeated("SoundEarlier", "Sound Earlier", kShiftK, Change<&PlayTools::ShiftSound, -kShift>, IsLoaded),
    Repeated("MoreThanFullVolume", "Louder Than the File", kPlus, Change<&PlayTools::Boost, kBoost>, IsLoaded),
    Repeated("BackToFullVolume", "Back towards the Full Volume", kMinus, Change<&PlayTools::Boost, -kBoost>, IsLoaded),
    Command{ .id = "ShowRemaining",
        .caption = "Show the Time That Is Left",
        .keys = kR,
        .run = Do<&PlayTools::ToggleRemaining>,
        .isChecked = [](const Player& player) { return player.Tools().ShowsRemaining(); } },
    Command{ "StopAfterThis", "Stop After This &One", kCtrlE,
        [](Player& player, int) {
            const bool stops = !player.Sequence().StopsAfterThis();
            player.Sequence().StopAfterThis(stops);
            player.Face().window->ShowNote(Words(stops ? "Stops after this one" : "Goes on after this one"));
        },
        IsLoaded, [](const Player& player) { return player.Sequence().StopsAfterThis(); } },
    Switching<Choice::Previews>("Previews", "Pictures over the Seek Bar"),
    Switching<Choice::MusicView>("MusicView", "Cover and Bars with Music"),
    Command{ .id = "SleepTimer",
        .caption = "Stop by the Cloc&k",
        .keys = kCtrlT,
        .run = Do<&PlayTools::NextSleepTime>,
        .isChecked = [](const Player& player) { return player.Tools().SleepTime() > 0; } },
};

} // namespace

std::span<const Command> PlayCommands()
{
    return kCommands;
}

} // namespace zentaro
