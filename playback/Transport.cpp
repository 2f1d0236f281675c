#include "playback/Transport.h"

#include "base/Numbers.h"
#include "base/Words.h"
#include "playback/TimeText.h"

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

constexpr int kNotch = 120;                       // eighths of a degree
constexpr int kVolumePerNotch = 5;                // percent
constexpr double kStepWithoutLength = 0.01;       // of the item
constexpr double kEndMargin = 1500;               // ms before the end: nearer to it the clock takes an item as ended
constexpr double kEndMarginWithoutLength = 0.001; // of the item
constexpr int kTicksUntilSpared = 6;              // half a second each; coming back costs a moment of sound

/// Where a step of so many ms lands in an item of that length (ms).
double StepFrom(double position, int milliseconds, double length)
{
    const bool isLengthKnown = length > 0;
    const double step = isLengthKnown ? milliseconds / length : (milliseconds < 0 ? -1 : 1) * kStepWithoutLength;
    const double margin = isLengthKnown ? kEndMargin / length : kEndMarginWithoutLength;
    // Who is in the margin already is not thrown back.
    const double furthest = std::max(1 - margin, position);
    return std::clamp(std::min(position + step, furthest), 0.0, 1.0);
}

} // namespace

std::string PlaceText(const TransportState& state)
{
    if (!state.mediaControlsEnabled)
        return state.timeText;
    const auto textOf = [](double milliseconds) { return ShortTimeText(RoundHalfEven(milliseconds / 1000)); };
    // In its first moments an item has no length, and the label still has that of the one before.
    return state.length > 0 ? Words("%1 of %2", { textOf(state.elapsed), textOf(state.length) })
                            : textOf(state.elapsed);
}

Transport::Transport(EngineFactory& engines, std::function<void(bool)> showFullScreen, TransportObserver& observer)
    : m_host(engines)
    , m_observer(observer)
{
    m_host.onFullScreen = std::move(showFullScreen);
    m_state.timeText = TimeLabelText(0, 0);
    m_state.rateText = RateLabelText(1);
}

Engine* Transport::LoadedEngine() const
{
    return m_state.mediaControlsEnabled ? m_host.VLCPlayer() : nullptr;
}

bool Transport::Open(TransportItem item, const MediaLocation& location, const EngineOptions& options)
{
    ReleaseHeldButtons();
    ++m_generation;
    m_host.RemoveVLCPlayer();
    m_host.AddVLCPLayer();
    m_item = std::move(item);
    auto* const engine = m_host.VLCPlayer();
    if (engine == nullptr)
        return false;
    engine->Add(location, options);
    return engine->ItemCount() > 0;
}

void Transport::Play()
{
    if (auto* const engine = m_host.VLCPlayer())
        engine->Play();
}

void Transport::ItemStarted(bool speedStays)
{
    if (speedStays)
        SetEngineRate(m_rate.Value());
    else
        m_rate.ItemStarted();
    m_unseenTicks = 0;
    m_state.isPaused = false;
    m_state.progress = 0;
    m_state.elapsed = 0;
    m_state.length = 0;
    m_state.seeks = 0;
    m_state.chapters.clear();
    // The logo of the sound before must not cover the first pictures; between two sounds it stays.
    m_state.showAudioLogo = m_state.showAudioLogo && !m_item.hasVideo;
    EnableMediaControls(true);
    ShowRate(true);
    m_observer.TransportChanged();
}

void Transport::EnableMediaControls(bool enabled)
{
    m_state.mediaControlsEnabled = enabled;
    m_state.hasVideoOutput = false;
    m_state.chosenRate = m_rate.Value();
    m_observer.MediaControlsSet(enabled);
}

void Transport::CMDPauseClick()
{
    auto* const engine = m_host.VLCPlayer();
    if (engine == nullptr)
        return;
    if (!m_state.mediaControlsEnabled || engine->State() >= Engine::kPlaying) {
        engine->TogglePause();
        m_state.isPaused = m_state.mediaControlsEnabled && engine->State() == Engine::kPaused;
    } else {
        // An engine that still opens its item forgets a pause; this one keeps it, and a second press takes it back.
        m_state.isPaused = !m_state.isPaused;
        engine->SetPause(m_state.isPaused);
    }
    m_observer.TransportChanged();
}

void Transport::cmdStopClick()
{
    ++m_generation;
    if (auto* const engine = m_host.VLCPlayer(); engine != nullptr && engine->ItemCount() > 0)
        engine->Stop();
    ReleaseHeldButtons();
    EnableMediaControls(false);
    ShowIdle();
}

void Transport::ShowIdle()
{
    m_state.isWatched = false;
    m_state.isPaused = false;
    m_state.showAudioLogo = false;
    m_state.progress = 0;
    m_state.elapsed = 0;
    m_state.length = 0;
    m_state.chapters.clear();
    m_state.timeText = TimeLabelText(0, 0);
    ShowRate(false);
    m_observer.TransportChanged();
}

void Transport::ShowWord(const std::string& word)
{
    m_state.timeText = word;
    m_observer.TransportChanged();
}

void Transport::SetEngineRate(std::optional<double> rate)
{
    auto* const engine = m_host.VLCPlayer();
    if (rate && engine != nullptr)
        engine->SetRate(*rate);
}

void Transport::cmdffMouseDown()
{
    if (m_state.mediaControlsEnabled)
        SetEngineRate(m_held.PressFastForward());
}

void Transport::cmdffMouseUp()
{
    SetEngineRate(m_held.ReleaseFastForward());
}

void Transport::RewindPressed()
{
    m_held.PressRewind(m_state.mediaControlsEnabled);
    m_state.isRewinding = m_held.IsRewinding();
    m_observer.TransportChanged();
}

void Transport::RewindReleased()
{
    m_held.ReleaseRewind();
    m_state.isRewinding = false;
    m_observer.TransportChanged();
}

void Transport::OnRewindTick()
{
    auto* const engine = m_held.IsRewinding() ? LoadedEngine() : nullptr;
    if (engine == nullptr)
        return;
    if (const auto position = m_held.RewindTick(engine->Position()))
        engine->SetPosition(*position);
}

void Transport::ReleaseHeldButtons()
{
    SetEngineRate(m_held.ReleaseAll());
    if (std::exchange(m_state.isRewinding, false))
        m_observer.TransportChanged();
}

void Transport::Seek(double position)
{
    auto* const engine = LoadedEngine();
    if (engine == nullptr)
        return;
    m_state.progress = std::clamp(position, 0.0, 1.0);
    if (m_state.length > 0)
        m_state.elapsed = m_state.progress * m_state.length;
    ++m_state.seeks;
    engine->SetPosition(position);
    m_observer.TransportChanged();
}

void Transport::SeekBy(int milliseconds)
{
    if (auto* const engine = LoadedEngine())
        Seek(StepFrom(engine->Position(), milliseconds, engine->Length()));
}

void Transport::SetVolume(int percent)
{
    m_host.SetVolume(percent);
    m_state.volume = m_host.Volume();
    m_state.boost = m_host.Boost();
    m_observer.TransportChanged();
}

void Transport::SetBoost(int percent)
{
    m_host.SetBoost(percent);
    m_state.volume = m_host.Volume();
    m_state.boost = m_host.Boost();
    m_observer.TransportChanged();
}

void Transport::TurnVolume(int eighths)
{
    // A turn back is felt at once, whatever the turn forward has left over.
    if ((eighths < 0) != (m_wheel < 0))
        m_wheel = 0;
    m_wheel += eighths;
    const int notches = m_wheel / kNotch;
    m_wheel %= kNotch;
    SetVolume(m_state.volume + notches * kVolumePerNotch);
}

void Transport::cmdMuteClick()
{
    m_host.ToggleMute();
    m_state.isMuted = m_host.IsMuted();
    m_observer.TransportChanged();
}

void Transport::IncreaseRate()
{
    ApplyRate(m_rate.IncreaseRate(m_state.mediaControlsEnabled));
}

void Transport::DecreaseRate()
{
    ApplyRate(m_rate.DecreaseRate(m_state.mediaControlsEnabled));
}

void Transport::StepRate(int steps)
{
    ApplyRate(m_rate.StepRate(steps, m_state.mediaControlsEnabled));
}

void Transport::ResetRate()
{
    ApplyRate(m_rate.ResetRate(m_state.mediaControlsEnabled));
}

void Transport::ApplyRate(const RateChange& change)
{
    SetEngineRate(change.engineRate);
    m_state.chosenRate = m_rate.Value();
    if (change.engineRate)
        ShowRate(false);
    m_observer.RateChanged(change);
    m_observer.TransportChanged();
}

void Transport::ShowRate(bool isLoading)
{
    auto* const engine = LoadedEngine();
    m_state.rateText = isLoading ? "Loading..." : RateLabelText(engine != nullptr ? engine->Rate() : 1.0);
}

EngineReading Transport::Read() const
{
    EngineReading reading;
    auto* const engine = m_host.VLCPlayer();
    if (engine == nullptr || engine->ItemCount() == 0)
        return reading;
    reading.isLoaded = m_state.mediaControlsEnabled;
    reading.state = engine->State();
    reading.position = engine->Position();
    reading.time = engine->Time();
    reading.length = engine->Length();
    reading.isDisc = m_item.IsDisc();
    reading.hasVideoOutput = reading.state >= Engine::kPlaying && engine->HasVideoOutput();
    return reading;
}

void Transport::SetSeen(bool seen)
{
    m_isSeen = seen;
    m_unseenTicks = 0;
    if (auto* const engine = LoadedEngine(); engine != nullptr && seen)
        engine->SetSeen(true);
}

void Transport::SpareUnseen()
{
    // A disc's menus are pictures, and wait for an answer.
    if (m_isSeen || !m_state.mediaControlsEnabled || m_item.IsDisc() || m_state.isPaused || !m_state.hasVideoOutput)
        return;
    if (++m_unseenTicks == kTicksUntilSpared)
        m_host.VLCPlayer()->SetSeen(false);
}

std::optional<ItemEnd> Transport::OnPositionTick()
{
    const auto reading = Read();
    const auto tick = ReadPosition(reading, m_state.mediaControlsEnabled, m_engineEndsItems);
    const auto before = m_state;
    m_state.hasVideoOutput = reading.hasVideoOutput;
    m_state.isWatched = HoldsOffSleep(reading);
    if (reading.state >= Engine::kPlaying)
        m_state.isPaused = reading.isLoaded && reading.state == Engine::kPaused;
    m_state.elapsed = reading.time;
    m_state.length = reading.length;
    // A disc has others in each of its titles.
    if (reading.isLoaded && reading.state >= Engine::kPlaying)
        m_state.chapters = m_host.VLCPlayer()->Chapters();
    m_state.timeText = tick.timeText;
    m_state.progress = tick.progress ? std::clamp(*tick.progress, 0, 100) / 100.0 : m_state.progress;
    m_state.showAudioLogo = tick.showAudioLogo.value_or(m_state.showAudioLogo);
    ShowRate(tick.isLoading);
    std::optional<ItemEnd> end;
    if (tick.hasEnded) {
        ReleaseHeldButtons();
        EnableMediaControls(false);
        end = ItemEnd{ m_item.IsDisc(), tick.hasFailed };
    }
    SpareUnseen();
    // A paused item stays as it is, and nothing has to be painted for it.
    if (end || m_state != before)
        m_observer.TransportChanged();
    return end;
}

} // namespace zentaro
