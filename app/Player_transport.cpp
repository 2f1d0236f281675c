#include "app/Player.h"

#include "base/Paths.h"
#include "platform/Files.h"
#include "playback/Snapshot.h"

#include <utility>

// What the player does with the item that is loaded, and at its end.
namespace zentaro {

void Player::CMDPauseClick()
{
    if (auto* const engine = m_host.VLCPlayer())
        engine->TogglePause();
}

void Player::cmdStopClick()
{
    ForgetDiscStart();
    if (auto* const engine = m_host.VLCPlayer(); engine != nullptr && engine->ItemCount() > 0)
        engine->Stop();
    m_world.holdOffSleep(false);
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
    if (change.increaseEnabled)
        m_commands.SetEnabled("IncreaseSpeed", *change.increaseEnabled);
    if (change.decreaseEnabled)
        m_commands.SetEnabled("DecreaseSpeed", *change.decreaseEnabled);
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
    m_commands.CheckOnly(kAfterPlayKeys, m_afterPlay.MarkedItem());
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

void Player::TakeSnapshot()
{
    auto* const engine = CanTakeSnapshot() ? m_host.VLCPlayer() : nullptr;
    if (engine == nullptr)
        return;
    // The path of the defaults names a place of another system; there, and for no path at all, the pictures go to
    // where users look for pictures.
    const auto& chosen = m_settings.SnapshotPath;
    const auto folder = SnapshotFolder(platform::IsAbsolutePath(chosen) ? chosen : platform::PicturesFolder(),
        IsDiscLoaded() ? m_discName : m_currentItemPath, m_world.separator);
    const auto pathOf = [&](const std::string& name) {
        return WithTrailingSeparator(folder, m_world.separator) + name;
    };
    const auto name = NextSnapshotName(m_settings.SnapshotPrefix, m_world.separator,
        [&](const std::string& each) { return platform::PathExists(pathOf(each)); });
    const bool isWritten = !name.empty() && platform::MakeFolder(folder) && engine->TakeSnapshot(pathOf(name))
        && platform::PathExists(pathOf(name));
    if (isWritten)
        m_world.screen.ShowPictureNote("Saved " + name, m_settings.SnapshotPreview != 0 ? pathOf(name) : "");
    else
        m_world.screen.ShowNote("No snapshot could be saved in " + folder);
}

void Player::NoteVideoOutput(bool hasVideoOutput)
{
    if (std::exchange(m_hasVideoOutput, hasVideoOutput) != hasVideoOutput)
        m_world.screen.StateChanged();
}

void Player::LoadSubtitleFile()
{
    const auto path = m_world.screen.AskForSubtitles();
    // The item can have ended under the dialog.
    auto* const engine = LoadedEngine();
    if (path.empty() || engine == nullptr)
        return;
    if (!engine->AddSubtitleFile(path))
        m_world.screen.ShowNote("The subtitles cannot be opened");
}

void Player::ToggleFullScreen()
{
    m_host.SetFullScreen(!m_world.screen.IsFullScreen());
}

void Player::LeaveFullScreen()
{
    if (m_world.screen.IsFullScreen())
        m_host.SetFullScreen(false);
}

void Player::EnableMediaControls(bool enabled)
{
    m_mediaControlsEnabled = enabled;
    m_hasVideoOutput = false;
    m_commands.SetEnabled({ "Stop", "FullScreen", "IncreaseSpeed", "DecreaseSpeed", "ResetSpeed" }, enabled);
    if (!enabled)
        m_playlist.List().SetPlayingItem(FancyListState::kNone);
    m_world.screen.StateChanged();
}

void Player::OnPositionTick()
{
    if (m_isStartingDisc)
        return; // the word in place of the time stays until the disc plays
    EngineReading reading;
    if (auto* const engine = m_host.VLCPlayer(); engine != nullptr && engine->ItemCount() > 0) {
        reading.isLoaded = m_mediaControlsEnabled;
        reading.state = engine->State();
        reading.position = engine->Position();
        reading.time = engine->Time();
        reading.length = engine->Length();
        reading.isDisc = IsDiscLoaded();
        reading.hasVideoOutput = reading.state >= Engine::kPlaying && engine->HasVideoOutput();
    }
    NoteVideoOutput(reading.hasVideoOutput);
    const auto tick = ReadPosition(reading, m_mediaControlsEnabled);
    m_world.holdOffSleep(m_settings.DisableScreenSaver != 0 && HoldsOffSleep(reading));
    if (tick.progress)
        m_seekBar.SetProgress(*tick.progress);
    m_world.screen.ShowPosition(tick, reading.length);
    ShowRateLabel(tick.isLoading);
    if (tick.hasEnded) {
        ReleaseHeldButtons();
        EnableMediaControls(false);
        if (IsDiscLoaded())
            DiscEnded(tick.hasFailed);
        else
            ItemEnded(tick.hasFailed);
    }
    if (!m_mediaControlsEnabled && !m_starting && m_adding.Progress().total == 0)
        m_discWatcher.SwitchOn();
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
        else
            OpenFiles(false); // emptied while its last item played
    } else {
        // An index that a removal has left behind plays nothing.
        PlayItem(ItemNumber(next.index), false);
    }
}

} // namespace zentaro
