#include "app/PlayerKeys.h"

#include "app/Player.h"

#include <array>

namespace zentaro {

namespace {

constexpr int kStep = 5000;      // ms
constexpr int kLongStep = 30000; // ms
constexpr int kVolumeStep = 5;   // percent

constexpr std::string_view kSpace[] = { "Space" };
constexpr std::string_view kArrows[] = { "Left", "Right" };
constexpr std::string_view kShiftArrows[] = { "Shift+Left", "Shift+Right" };
constexpr std::string_view kUpDown[] = { "Up", "Down" };
constexpr std::string_view kMute[] = { "M" };
constexpr std::string_view kSnapshot[] = { "S" };
constexpr std::string_view kFullScreen[] = { "F" };
constexpr std::string_view kEscape[] = { "Esc" };
constexpr std::string_view kEnter[] = { "Return", "Enter" };
constexpr std::string_view kDelete[] = { "Del" };
constexpr std::string_view kDigits[] = { "0", "1", "2", "3", "4", "5", "6", "7", "8", "9" };
constexpr std::string_view kBrackets[] = { "[", "]" };

/// The first of two keys goes back, the second one forth.
constexpr int Direction(int index)
{
    return index == 0 ? -1 : 1;
}

constexpr std::array kTable{
    PlayerKey{ "Space", kSpace, "Play or pause", [](Player& player, int) { player.PlayOrPause(); } },
    PlayerKey{ "Left, Right", kArrows, "5 seconds back or forward; in the menu of a disc, the button beside",
        [](Player& player, int index) {
            if (!player.NavigateDisc(index == 0 ? DiscKey::Left : DiscKey::Right))
                player.SeekBy(Direction(index) * kStep);
        },
        true },
    PlayerKey{ "Shift+Left, Shift+Right", kShiftArrows, "30 seconds back or forward",
        [](Player& player, int index) { player.SeekBy(Direction(index) * kLongStep); }, true },
    PlayerKey{ "0 to 9", kDigits, "Jump to that tenth of the item",
        [](Player& player, int index) { player.Seek(index / 10.0); } },
    PlayerKey{ "Up, Down", kUpDown,
        "Louder or quieter; in the playlist, the entry above or below, and so in the menu of a disc",
        [](Player& player, int index) {
            if (player.NavigateDisc(index == 0 ? DiscKey::Up : DiscKey::Down))
                return;
            if (const auto volume = player.Loudness().StepBy(-Direction(index) * kVolumeStep))
                player.SetVolume(*volume);
        },
        true },
    PlayerKey{ "M", kMute, "Mute", [](Player& player, int) { player.cmdMuteClick(); } },
    PlayerKey{ "[, ]", kBrackets, "Slower or faster",
        [](Player& player, int index) { player.RunCommand(index == 0 ? "DecreaseSpeed" : "IncreaseSpeed"); } },
    PlayerKey{ "F", kFullScreen, "Full screen on or off", [](Player& player, int) { player.ToggleFullScreen(); } },
    PlayerKey{ "S", kSnapshot, "Save a snapshot of the video", [](Player& player, int) { player.TakeSnapshot(); } },
    PlayerKey{ "Esc", kEscape, "Leave full screen", [](Player& player, int) { player.LeaveFullScreen(); } },
    PlayerKey{ "Enter", kEnter, "Play the selected entry; in the menu of a disc, press the button",
        [](Player& player, int) {
            if (!player.NavigateDisc(DiscKey::Activate) && player.Entries().SelectedEntry())
                player.CMDPlayClick();
        } },
    PlayerKey{ "Delete", kDelete, "Remove the selected entry from the playlist",
        [](Player& player, int) { player.RunCommand("Remove"); } },
};

} // namespace

std::span<const PlayerKey> PlayerKeys()
{
    return kTable;
}

} // namespace zentaro
