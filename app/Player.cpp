#include "app/Player.h"

#include "base/Paths.h"
#include "playlist/DroppedFiles.h"
#include "playlist/OpenFiles.h"
#include "shell/Caption.h"
#include "shell/WindowLayout.h"

#include <limits>
#include <utility>

namespace zentaro {

namespace {

constexpr int kPumpsAfterPlay = 6; // gives the engine time to open its video window

} // namespace

std::int16_t ItemNumber(int index)
{
    return index <= std::numeric_limits<std::int16_t>::max() ? static_cast<std::int16_t>(index) : std::int16_t{ -1 };
}

Player::Player(PlayerWorld world)
    : m_world(std::move(world))
    , m_history(m_world.store, m_commands, m_classic)
    , m_host(m_world.engines)
    , m_playlist(m_world.random)
    , m_adding(m_playlist, m_addingHost, m_world.inspections)
{
    m_host.onFullScreen = [this](bool fullScreen) { m_world.screen.SetFullScreen(fullScreen); };
    if (const auto& types = m_world.associations; types.shell)
        m_modAssoc.emplace(m_world.store, *types.shell, types.programPath, types.programFolder, m_world.separator);
}

Player::~Player() = default;

void Player::cmdPlayListClick()
{
    m_world.screen.SetPlaylistPosition(m_world.screen.IsPlaylistVisible() ? PlaylistDock::Hidden : StoredDock());
}

void Player::LoadThumb(const std::string& title, const std::string& path, bool playFlag, bool playNow)
{
    WaitForFile(m_adding.Add({ { title, path, playFlag, playNow } }));
}

void Player::WaitForFile(int ticket)
{
    // A file that is just being taken in waits for us below on the stack.
    if (!m_adding.IsTaking())
        m_world.screen.PumpUntil([&] { return !m_adding.IsPending(ticket); });
}

void Player::AddFiles(std::vector<AddRequest> requests)
{
    m_adding.Add(std::move(requests));
}

void Player::InspectionCompleted(int ticket, Inspection inspection)
{
    m_adding.Completed(ticket, std::move(inspection));
}

void Player::OpenFiles(bool addOnly)
{
    bool playNext = !addOnly;
    for (const auto& answer : m_world.screen.AskForFiles(std::string(kOpenDialogTitle), OpenDialogFilter())) {
        const auto files = ParseOpenFileResult(answer, m_world.separator);
        if (!files)
            continue;
        AddFiles(AddRequests(*files, m_world.separator, std::exchange(playNext, false)));
    }
}

void Player::DropOnList(const std::vector<std::string>& paths)
{
    AddPaths(paths, false);
}

void Player::DropOnVideo(const std::vector<std::string>& paths)
{
    AddPaths(paths, true);
}

void Player::AddPaths(const std::vector<std::string>& paths, bool playFirst)
{
    // A folder can hold a whole disk; the window stays alive while it is read.
    const auto goOn = [&] {
        m_world.screen.PumpMessages(1);
        return !m_ended;
    };
    const auto files = DroppedMediaFiles(paths, m_world.separator, goOn);
    if (!m_ended)
        AddFiles(AddRequests(files, m_world.separator, playFirst));
}

void Player::ListClicked()
{
    m_playlist.OnClick(m_settings.PlayMode);
}

void Player::ListDoubleClicked()
{
    const auto index = m_playlist.DoubleClickedIndex();
    if (!index)
        return;
    m_failuresInRow = 0;
    PlayItem(ItemNumber(*index), false);
    m_world.screen.SetPlaylistPosition(PlaylistDock::Hidden);
    m_playlist.MovePositionToSelected();
}

void Player::RemoveSelected()
{
    m_playlist.RemoveSelected();
    m_world.screen.StateChanged();
}

void Player::RemoveAll()
{
    m_playlist.RemoveAll();
    m_world.screen.StateChanged();
}

void Player::SetPlayMode(std::int32_t mode)
{
    m_settings.PlayMode = mode;
    m_commands.CheckOnly(kPlayModeKeys, static_cast<std::size_t>(mode));
    m_playlist.BuildOrder(mode);
    m_world.screen.StateChanged();
}

void Player::SetRepeatMode(std::int32_t mode)
{
    m_settings.RepeatMode = mode;
    m_commands.CheckOnly(kRepeatModeKeys, static_cast<std::size_t>(mode));
    m_world.screen.StateChanged();
}

void Player::CMDPlayClick()
{
    if (m_playlist.Count() == 0) {
        OpenFiles(false);
        return;
    }
    m_failuresInRow = 0;
    if (m_dvdMode)
        PlayLoadedDisc();
    else
        PlaySelected();
}

void Player::DockPlaylist(PlaylistDock position)
{
    if (position != PlaylistDock::Hidden)
        m_settings.PlaylistPosition = static_cast<std::int32_t>(position);
    m_world.screen.SetPlaylistPosition(position);
}

void Player::PlaySelected()
{
    if (m_playlist.List().SelectedItem() < 0)
        m_playlist.List().SetSelectedItem(0);
    m_playlist.MovePositionToSelected();
    PlayItem(ItemNumber(m_playlist.List().SelectedItem()), false);
}

void Player::PlayEntry(int index)
{
    m_failuresInRow = 0;
    m_playlist.List().SetSelectedItem(index);
    PlaySelected();
}

void Player::cmdNextClick()
{
    if (m_mediaControlsEnabled)
        StepTo(m_playlist.StepNext());
}

void Player::cmdPreviousClick()
{
    if (m_mediaControlsEnabled)
        StepTo(m_playlist.StepPrevious());
}

void Player::StepTo(std::optional<int> index)
{
    m_failuresInRow = 0;
    if (index)
        PlayItem(ItemNumber(*index), false);
}

void Player::PlayItem(std::int16_t index, bool fullScreen)
{
    if (index < 0 || index >= m_playlist.Count())
        return;
    ReleaseHeldButtons();
    ForgetDiscStart();
    m_dvdMode = false;
    m_host.RemoveVLCPlayer();
    m_host.AddVLCPLayer();
    m_currentItemPath = m_playlist.PathAt(index);
    m_options = WithSnapshotFolder(m_options, m_settings.SnapshotPath, m_currentItemPath, m_world.separator);
    if (auto* const engine = m_host.VLCPlayer()) {
        engine->Add({ m_currentItemPath, IsDiscLocation(m_currentItemPath) }, m_options);
        engine->Play();
    }
    ShowCaption();
    m_history.AddToHistory(m_currentItemPath, m_playlist.List().SelectedText());
    m_playlist.List().SetPlayingItem(index);
    EnableMediaControls(true);
    m_rate.ItemStarted();
    ShowRateLabel(true);
    m_world.screen.PumpMessages(kPumpsAfterPlay);
    if (fullScreen)
        m_host.ToggleFullScreen();
}

void Player::ShowCaption()
{
    const auto entry = m_playlist.SelectedEntry();
    m_world.screen.ShowCaption(CaptionText(
        { m_settings.TitleBarMode, m_playlist.List().SelectedText(), entry ? entry->FullPath : std::string() }));
}

} // namespace zentaro
