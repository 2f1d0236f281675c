#include "app/Player.h"

#include <algorithm>

// The player's commands by key, and what they leave enabled and checked.
namespace zentaro {

namespace {

struct Command {
    std::string_view key;
    void (*run)(Player&);
};

constexpr std::array kCommandTable{
    Command{ "OpenFile", [](Player& player) { player.OpenFiles(false); } },
    Command{ "Exit", [](Player& player) { player.Exit(); } },
    Command{ "PlayPause", [](Player& player) { player.PlayPause(); } },
    Command{ "Stop",
        [](Player& player) {
            player.cmdStopClick();
            player.SmartMenuXP1().SetEnabled("Stop", false);
        } },
    Command{ "PMNormal", [](Player& player) { player.PBNormal(); } },
    Command{ "PMContinuous", [](Player& player) { player.PBCont(); } },
    Command{ "PMShuffle", [](Player& player) { player.PBShuffle(); } },
    Command{ "RMNoRepeat", [](Player& player) { player.SetRepeatMode(kNoRepeat); } },
    Command{ "RMSingleRepeat", [](Player& player) { player.SetRepeatMode(kRepeatSingle); } },
    Command{ "RMRepeatAll", [](Player& player) { player.SetRepeatMode(kRepeatAll); } },
    Command{ "FullScreen", [](Player& player) { player.cmdFulScreenClick(); } },
    Command{ "IncreaseSpeed", [](Player& player) { player.IncreaseRate(); } },
    Command{ "DecreaseSpeed", [](Player& player) { player.DecreaseRate(); } },
    Command{ "ResetSpeed", [](Player& player) { player.ResetRate(); } },
    Command{ "Donothing", [](Player& player) { player.DoAfter(0); } },
    Command{ "ExitZentaro", [](Player& player) { player.DoAfter(1); } },
    Command{ "RestartTheComputer", [](Player& player) { player.DoAfter(2); } },
    Command{ "ShutdownTheComputer", [](Player& player) { player.DoAfter(3); } },
    Command{ "AddVideoFile", [](Player& player) { player.AddVideoFile(); } },
    Command{ "Remove",
        [](Player& player) {
            player.RemoveSelected();
            // "Remove" itself stays: on an empty list it does nothing.
            if (player.Entries().Count() == 0)
                player.SmartMenuXP1().SetEnabled({ "RemoveAll", "Next", "Previous" }, false);
        } },
    Command{ "RemoveAll",
        [](Player& player) {
            player.RemoveAll();
            player.SmartMenuXP1().SetEnabled({ "RemoveAll", "Next", "Previous" }, false);
        } },
    Command{ "Next", [](Player& player) { player.cmdNextClick(); } },
    Command{ "Previous", [](Player& player) { player.cmdPreviousClick(); } },
    Command{ "Options", [](Player& player) { player.ShowOptions(); } },
    Command{ "About", [](Player& player) { player.ShowAbout(); } },
    Command{ "HelpTopics", [](Player& player) { player.ShowHelp(); } },
};

} // namespace

void Player::RunCommand(std::string_view key)
{
    const auto* const item = m_commands.Find(key);
    if (item == nullptr || !item->enabled || !item->visible)
        return;
    const auto command = std::ranges::find(kCommandTable, key, &Command::key);
    if (command != kCommandTable.end()) {
        command->run(*this);
        return;
    }
    for (int slot = 0; slot < kHistorySlots; ++slot) {
        if (key == HistoryKey(slot))
            PlayHistoryItem(slot);
    }
}

void Player::PlayHistoryItem(int slot)
{
    // Copies: playing can shift the slots.
    const auto caption = m_commands.Find(HistoryKey(slot))->caption;
    const auto path = m_history.PathAt(slot);
    LoadThumb(caption, path, false, true);
}

void Player::PlayOrPause()
{
    if (m_mediaControlsEnabled) {
        CMDPauseClick();
        return;
    }
    // A removal can leave the selection behind the last entry.
    if (m_playlist.Count() > 0 && !m_playlist.SelectedEntry())
        m_playlist.List().SetSelectedItem(m_playlist.Count() - 1);
    CMDPlayClick();
}

void Player::PlayPause()
{
    if (m_playlist.Count() > 0) {
        CMDPauseClick();
        return;
    }
    OpenFiles(false);
    m_commands.SetEnabled("Stop", true);
}

void Player::AddVideoFile()
{
    m_selectsFirstAdded = true;
    OpenFiles(true);
    EntryAdded();
    m_selectsFirstAdded = m_adding.Progress().total > 0;
}

void Player::EntryAdded()
{
    if (m_selectsFirstAdded && m_playlist.List().SelectedItem() < 0)
        m_playlist.List().SetSelectedItem(0);
    if (m_playlist.Count() > 0)
        m_commands.SetEnabled({ "Remove", "RemoveAll", "Next", "Previous" }, true);
    m_world.screen.StateChanged();
}

void Player::ShowOptions()
{
    m_world.screen.SetTopmost(false);
    m_world.screen.ShowOptions();
}

void Player::CommitOptions(const SettingsPages& pages)
{
    m_settings = WithPages(m_settings, pages);
    IgnoreFailure(WriteConfigurations());
    SaveVLCOptions();
    SetLoadedOptions();
    ApplyAssociations();
    // The dialog is still open and lies above the window.
    m_world.screen.SetTopmost(false);
}

void Player::ShowAbout()
{
    m_world.screen.SetTopmost(false);
    m_world.screen.ShowAbout();
}

void Player::DialogClosed()
{
    m_world.screen.SetTopmost(m_settings.AlwaysOnTop != 0);
}

void Player::cmdDVDClick()
{
    m_world.screen.PopupMenu("mnuOpenDVD");
}

} // namespace zentaro
