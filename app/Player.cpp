#include "app/Player.h"

#include "base/Numbers.h"
#include "base/Paths.h"
#include "platform/Folders.h"
#include "platform/TextFile.h"
#include "playlist/DroppedFiles.h"
#include "playlist/OpenFiles.h"
#include "shell/Caption.h"
#include "shell/WindowLayout.h"

#include <limits>
#include <utility>

namespace zentaro {

namespace {

constexpr const char* kRunningMark = "QuorvaneZentaro";
constexpr std::size_t kConfigLimit = 1 << 20; // bytes; 46 lines are far shorter
constexpr int kPumpsAfterPlay = 6;            // gives the engine time to open its video window

} // namespace

std::int16_t ItemNumber(int index)
{
    return index <= std::numeric_limits<std::int16_t>::max() ? static_cast<std::int16_t>(index) : std::int16_t{ -1 };
}

Player::Player(PlayerWorld world)
    : m_world(std::move(world))
    , m_host(m_world.engines)
    , m_playlist(m_world.random)
    , m_adding(m_playlist, m_addingHost, m_world.inspections)
{
    m_host.onFullScreen = [this](bool fullScreen) { m_world.screen.SetFullScreen(fullScreen); };
}

Player::~Player() = default;

bool Player::Load(const std::string& commandLine)
{
    m_starting = true;
    m_replaceOnOpen = true;
    platform::MarkPlayerRunning(kRunningMark);
    m_world.power.EnableShutdownPrivilege();
    LoadConfigurations();
    m_world.screen.ShowIdle();
    m_playlist.BuildOrder(m_settings.PlayMode);
    m_startup = ReadCommandLine(commandLine, m_world.fileExists);
    m_replaceOnOpen = m_startup.ReplaceOnOpen;
    if (!BecomePlayer())
        return false;
    m_world.engines.Prepare();
    // The file's inspection is under way while the window comes up.
    const auto opening = OpenStartupFile();
    m_world.screen.SetPlaylistPosition(StoredDock());
    m_world.screen.ShowWindow();
    if (opening)
        WaitForFile(*opening);
    m_starting = false;
    return true;
}

bool Player::BecomePlayer()
{
    const auto key = platform::SettingsKey(kApplicationTitle, "Setting");
    const auto read = [&](const char* name, const char* fallback) {
        return m_world.store.Read(platform::StringStore::Root::CurrentUser, key, name, fallback);
    };
    // A player can end between the test and the call: then its caller asks once more, and calls nobody any more.
    for (bool mayCall = true;; mayCall = false) {
        auto lock = m_world.handOver.lock();
        const PublishedHandles handles{ read("txtHwnd", "-1"), read("txtHwnd1", "") };
        const auto role =
            DecideRole(m_startup, handles, m_settings.UseNewPlayer != 0, m_world.handOver.isAlive, m_world.separator);
        if (role.kind == StartRole::Kind::Player || (role.kind == StartRole::Kind::Caller && !mayCall)) {
            Publish();
            return true;
        }
        lock.reset();
        const bool taken = role.text.empty() || m_world.handOver.send(role.handle, role.text);
        if (taken || role.kind == StartRole::Kind::Messenger)
            return false;
    }
}

void Player::Publish()
{
    auto ends = m_world.handOver.listen();
    if (!ends)
        return; // a player that cannot be reached plays all the same
    m_ends = std::move(*ends);
    const auto key = platform::SettingsKey(kApplicationTitle, "Setting");
    const auto write = [&](const char* name, const std::string& handle) {
        IgnoreFailure(m_world.store.Write(platform::StringStore::Root::CurrentUser, key, name, handle));
    };
    write("txtHwnd", m_ends->CommandHandle());
    write("txtHwnd1", m_ends->ProbeHandle());
    m_ends->Deliver([this](const std::string& text) { ReceiveText(text); });
}

std::optional<int> Player::OpenStartupFile()
{
    const auto& path = m_startup.StartupArgument;
    if (!m_world.fileExists(path) || !IsSupportedFile(path, m_world.separator))
        return std::nullopt;
    return m_adding.Add({ RequestFromOutside(path) });
}

void Player::ReceiveText(const std::string& text)
{
    if (text.empty())
        return;
    m_world.screen.FlashCaption();
    // Whether it plays at once depends on how this player itself was started; the text is opened as it stands.
    const auto request = RequestFromOutside(text);
    LoadThumb(request.title, request.path, request.playFlag, request.playNow);
}

AddRequest Player::RequestFromOutside(const std::string& path) const
{
    return { FileNamePart(path, m_world.separator), path, m_settings.LaunchFullScreen != 0, m_replaceOnOpen };
}

void Player::Unload()
{
    if (std::exchange(m_ended, true))
        return;
    m_adding.Close();
    IgnoreFailure(WriteConfigurations());
    m_host.RemoveVLCPlayer();
    m_ends.reset();
    m_world.endProcess();
}

std::string Player::ConfigPath() const
{
    return m_world.settingsFolder + "Config.cfg";
}

void Player::LoadConfigurations()
{
    const auto text = platform::ReadTextFile(ConfigPath(), kConfigLimit);
    auto loaded = text ? ParseConfigurations(*text) : std::nullopt;
    const auto desktop = platform::DesktopFolder();
    if (!loaded) {
        loaded = DefaultSettings(desktop, m_world.screen.Extent());
        // A damaged file is replaced, a missing one made; one that must not be written stays as it is.
        if (!platform::PathExists(ConfigPath()) || platform::MayWriteFile(ConfigPath()))
            IgnoreFailure(platform::ReplaceTextFile(ConfigPath(), FormatConfigurations(*loaded)));
    } else if (loaded->DefaultFolder.find_first_not_of(' ') == std::string::npos) {
        loaded->DefaultFolder = desktop;
    }
    UseSettings(*loaded);
}

void Player::UseSettings(const PlayerSettings& settings)
{
    m_settings = settings;
    SaveVLCOptions();
    SetLoadedOptions();
}

Result<void> Player::WriteConfigurations()
{
    if (!m_starting && !m_world.screen.IsMaximized()) {
        m_settings.WindowLeft = RoundHalfEven(m_world.screen.WindowLeft());
        m_settings.WindowTop = RoundHalfEven(m_world.screen.WindowTop());
    }
    if (!platform::MayWriteFile(ConfigPath()))
        return Error{ 0, "Config.cfg cannot be replaced" };
    return platform::ReplaceTextFile(ConfigPath(), FormatConfigurations(m_settings));
}

void Player::SaveVLCOptions()
{
    m_options = OptionsFromSettings(m_settings);
}

void Player::SetLoadedOptions()
{
    // Sizes that the window takes on are recorded, so the settings are read before the first of them is.
    const auto settings = m_settings;
    if (settings.RememberLastSize != 0)
        m_world.screen.SetWindowSize(settings.WindowWidth, settings.WindowHeight);
    if (settings.RememberLastPos != 0)
        m_world.screen.SetWindowPosition(settings.WindowLeft, settings.WindowTop);
    m_world.screen.SetTopmost(settings.AlwaysOnTop != 0);
    if (m_mediaControlsEnabled)
        ShowCaption();
    if (m_world.screen.IsPlaylistVisible())
        m_world.screen.SetPlaylistPosition(StoredDock());
}

PlaylistDock Player::StoredDock() const
{
    const auto position = m_settings.PlaylistPosition;
    return position >= 0 && position <= 4 ? static_cast<PlaylistDock>(position) : PlaylistDock::Left;
}

void Player::cmdPlayListClick()
{
    m_world.screen.SetPlaylistPosition(m_world.screen.IsPlaylistVisible() ? PlaylistDock::Hidden : StoredDock());
}

void Player::WindowResized(int width, int height)
{
    if (m_starting || m_world.screen.IsMaximized())
        return;
    m_settings.WindowWidth = width;
    m_settings.WindowHeight = height;
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
    m_playlist.BuildOrder(mode);
    m_world.screen.StateChanged();
}

void Player::SetRepeatMode(std::int32_t mode)
{
    m_settings.RepeatMode = mode;
    m_world.screen.StateChanged();
}

void Player::CMDPlayClick()
{
    if (m_playlist.Count() == 0) {
        OpenFiles(false);
        return;
    }
    m_failuresInRow = 0;
    PlaySelected();
}

void Player::PlayPause()
{
    if (m_playlist.Count() == 0)
        OpenFiles(false);
    else
        CMDPauseClick();
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

void Player::CMDPauseClick()
{
    if (auto* const engine = m_host.VLCPlayer())
        engine->TogglePause();
}

void Player::cmdStopClick()
{
    if (auto* const engine = m_host.VLCPlayer(); engine != nullptr && engine->ItemCount() > 0)
        engine->Stop();
    ReleaseHeldButtons();
    EnableMediaControls(false);
    m_seekBar.SetProgress(0);
    m_world.screen.ShowIdle();
    ShowRateLabel(false);
}

Engine* Player::LoadedEngine() const
{
    return m_mediaControlsEnabled ? m_host.VLCPlayer() : nullptr;
}

void Player::SetEngineRate(std::optional<double> rate)
{
    auto* const engine = m_host.VLCPlayer();
    if (rate && engine != nullptr)
        engine->SetRate(*rate);
}

void Player::cmdffMouseDown()
{
    if (m_mediaControlsEnabled)
        SetEngineRate(m_held.PressFastForward());
}

void Player::cmdffMouseUp()
{
    SetEngineRate(m_held.ReleaseFastForward());
}

void Player::RewindPressed()
{
    m_held.PressRewind(m_mediaControlsEnabled);
}

void Player::RewindReleased()
{
    m_held.ReleaseRewind();
}

void Player::OnRewindTick()
{
    auto* const engine = m_held.IsRewinding() ? LoadedEngine() : nullptr;
    if (engine == nullptr)
        return;
    if (const auto position = m_held.RewindTick(engine->Position()))
        engine->SetPosition(*position);
}

void Player::ReleaseHeldButtons()
{
    SetEngineRate(m_held.ReleaseAll());
}

void Player::Seek(double position)
{
    if (auto* const engine = LoadedEngine())
        engine->SetPosition(position);
}

void Player::SeekBy(int milliseconds)
{
    auto* const engine = LoadedEngine();
    if (engine == nullptr)
        return;
    if (const auto position = m_seekBar.StepBy(milliseconds, engine->Position(), engine->Length(), true))
        engine->SetPosition(*position);
}

void Player::SetVolume(int percent)
{
    m_host.SetVolume(percent);
    m_volumeSlider.SetVolume(percent);
    m_world.screen.StateChanged();
}

void Player::IncreaseRate()
{
    ApplyRate(m_rate.IncreaseRate(m_mediaControlsEnabled));
}

void Player::DecreaseRate()
{
    ApplyRate(m_rate.DecreaseRate(m_mediaControlsEnabled));
}

void Player::ResetRate()
{
    ApplyRate(m_rate.ResetRate(m_mediaControlsEnabled));
}

void Player::ApplyRate(const RateChange& change)
{
    SetEngineRate(change.engineRate);
    if (change.engineRate)
        ShowRateLabel(false);
    m_world.screen.StateChanged();
}

void Player::ShowRateLabel(bool isLoading)
{
    auto* const engine = LoadedEngine();
    m_world.screen.ShowRate(isLoading ? "Loading..." : RateLabelText(engine != nullptr ? engine->Rate() : 1.0));
}

void Player::DoAfter(std::int16_t action)
{
    m_afterPlay.DoAfter(action);
    m_world.screen.StateChanged();
}

void Player::DoAfterFinishPlay()
{
    m_afterPlay.DoAfterFinishPlay(m_world.power, [this] { m_world.screen.CloseWindow(); });
}

void Player::cmdMuteClick()
{
    m_host.ToggleMute();
    m_world.screen.StateChanged();
}

void Player::cmdFulScreenClick()
{
    m_host.SetFullScreen(true);
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

void Player::EnableMediaControls(bool enabled)
{
    m_mediaControlsEnabled = enabled;
    if (!enabled)
        m_playlist.List().SetPlayingItem(FancyListState::kNone);
    m_world.screen.StateChanged();
}

void Player::OnPositionTick()
{
    EngineReading reading;
    if (auto* const engine = m_host.VLCPlayer(); engine != nullptr && engine->ItemCount() > 0) {
        reading.isLoaded = m_mediaControlsEnabled;
        reading.state = engine->State();
        reading.position = engine->Position();
        reading.time = engine->Time();
        reading.length = engine->Length();
        reading.hasVideoOutput = reading.state >= Engine::kPlaying && engine->HasVideoOutput();
    }
    const auto tick = ReadPosition(reading, m_mediaControlsEnabled);
    if (tick.progress)
        m_seekBar.SetProgress(*tick.progress);
    m_world.screen.ShowPosition(tick, reading.length);
    ShowRateLabel(tick.isLoading);
    if (tick.hasEnded) {
        ReleaseHeldButtons();
        EnableMediaControls(false);
        ItemEnded(tick.hasFailed);
    }
}

bool Player::IsRoundOfFailures() const
{
    return m_failuresInRow >= (m_settings.RepeatMode == kRepeatSingle ? 1 : m_playlist.Count());
}

void Player::ItemEnded(bool failed)
{
    m_failuresInRow = failed ? m_failuresInRow + 1 : 0;
    const auto next = m_playlist.OnEndOfItem(m_settings.PlayMode, m_settings.RepeatMode);
    if (next.action == EndOfItem::Action::StopAndAfterPlay) {
        cmdStopClick();
        DoAfterFinishPlay();
    } else if (failed && IsRoundOfFailures()) {
        m_failuresInRow = 0;
        cmdStopClick();
        m_world.screen.ShowNote("Nothing in the playlist can be played");
    } else if (next.action == EndOfItem::Action::RestartSame) {
        cmdStopClick();
        if (m_playlist.Count() > 0)
            PlaySelected();
    } else {
        // An index that a removal has left behind plays nothing.
        PlayItem(ItemNumber(next.index), false);
    }
}

void Player::PlayItem(std::int16_t index, bool fullScreen)
{
    if (index < 0 || index >= m_playlist.Count())
        return;
    ReleaseHeldButtons();
    m_host.RemoveVLCPlayer();
    m_host.AddVLCPLayer();
    m_currentItemPath = m_playlist.PathAt(index);
    m_options = WithSnapshotFolder(m_options, m_settings.SnapshotPath, m_currentItemPath, m_world.separator);
    if (auto* const engine = m_host.VLCPlayer()) {
        engine->Add({ m_currentItemPath, false }, m_options);
        engine->Play();
    }
    ShowCaption();
    m_playlist.List().SetPlayingItem(index);
    m_playlist.List().ScrollToRow(index);
    EnableMediaControls(true);
    m_rate.ItemStarted();
    ShowRateLabel(true);
    m_world.screen.PumpMessages(kPumpsAfterPlay);
    if (fullScreen)
        m_host.ToggleFullScreen();
}

void Player::ShowCaption()
{
    const auto* const entry = m_playlist.SelectedEntry();
    m_world.screen.ShowCaption(CaptionText({ m_settings.TitleBarMode, m_playlist.List().SelectedText(),
        entry != nullptr ? entry->FullPath : std::string() }));
}

} // namespace zentaro
