#include "app/PlayTools.h"

#include "base/Numbers.h"
#include "base/Words.h"
#include "playback/TimeText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zentaro {

namespace {

constexpr int kTick = 500; // ms between two looks at the place
constexpr int kSmallestText = 50;
constexpr int kLargestText = 300;
constexpr std::array kSleepTimes = { 0, 15, 30, 60, 90 }; // minutes

std::string TimeOf(double milliseconds)
{
    return TimeText(RoundDown(milliseconds / 1000));
}

std::string Signed(int milliseconds)
{
    return (milliseconds > 0 ? "+" : "") + std::to_string(milliseconds) + " ms";
}

} // namespace

PlayTools::PlayTools(Rooms rooms)
    : m_rooms(std::move(rooms))
    , m_isAlive(std::make_shared<bool>(true))
{
}

void PlayTools::NextFrame()
{
    auto* const engine = m_rooms.transport.LoadedEngine();
    if (engine == nullptr || !m_rooms.transport.State().hasVideoOutput)
        return;
    engine->NextFrame();
}

void PlayTools::MarkLoop()
{
    auto* const engine = m_rooms.transport.LoadedEngine();
    if (engine == nullptr)
        return;
    if (std::exchange(m_generation, m_rooms.transport.Generation()) != m_rooms.transport.Generation())
        m_loop.Clear();
    m_loop.Mark(engine->Time());
    if (m_loop.IsBegun())
        Note(Words("From %1: press again at the end", { TimeOf(m_loop.Begin()) }));
    else
        Note(m_loop.IsOn() ? Words("Again and again: %1 to %2", { TimeOf(m_loop.Begin()), TimeOf(m_loop.End()) })
                           : Words("Plays on"));
    Tick();
}

void PlayTools::Tick()
{
    auto* const engine = m_rooms.transport.LoadedEngine();
    if (engine == nullptr || !m_loop.IsOn() || m_generation != m_rooms.transport.Generation())
        return;
    const double left = m_loop.End() - engine->Time();
    if (left <= 0)
        return GoBackAt(m_loop.End());
    const double wait = left / std::max(engine->Rate(), 0.1);
    // The end lies between two ticks.
    if (wait < kTick + 100)
        m_rooms.after(std::chrono::milliseconds(RoundDown(wait)),
            [this, end = m_loop.End(), generation = m_generation, alive = std::weak_ptr(m_isAlive)] {
                if (!alive.expired() && generation == m_rooms.transport.Generation())
                    GoBackAt(end);
            });
}

void PlayTools::GoBackAt(double end)
{
    constexpr double early = 150; // ms: the clock stands still between two readings
    auto* const engine = m_rooms.transport.LoadedEngine();
    if (engine == nullptr || !m_loop.IsOn() || m_loop.End() != end || engine->Time() < end - early
        || engine->Length() <= 0)
        return;
    m_rooms.transport.Seek(m_loop.Begin() / engine->Length());
}

void PlayTools::AskForTime()
{
    const auto* const engine = m_rooms.transport.LoadedEngine();
    if (engine == nullptr)
        return;
    m_rooms.face.dialogs->AskForTime(m_rooms.transport.State().timeText, [this](const std::string& text) {
        auto* const asked = m_rooms.transport.LoadedEngine();
        const auto time = ParseTime(text);
        if (asked == nullptr || asked->Length() <= 0 || text.empty())
            return;
        if (!time || *time > asked->Length())
            return Note(time ? Words("The item is not that long") : Words("A time looks like this: 1:02:30"));
        m_rooms.transport.Seek(*time / asked->Length());
    });
}

void PlayTools::ShiftSound(int milliseconds)
{
    if (auto* const engine = m_rooms.transport.LoadedEngine()) {
        engine->SetAudioDelay(engine->AudioDelay() + milliseconds);
        Note(Words("Sound %1", { Signed(engine->AudioDelay()) }));
    }
}

void PlayTools::ShiftSubtitles(int milliseconds)
{
    if (auto* const engine = m_rooms.transport.LoadedEngine()) {
        engine->SetSubtitleDelay(engine->SubtitleDelay() + milliseconds);
        Note(Words("Subtitles %1", { Signed(engine->SubtitleDelay()) }));
    }
}

void PlayTools::ScaleSubtitles(int percent)
{
    m_subtitleScale = std::clamp(m_subtitleScale + percent, kSmallestText, kLargestText);
    m_rooms.engines.SetSubtitleScale(m_subtitleScale);
    Note(Words("Subtitles %1", { std::to_string(m_subtitleScale) + " %" }));
    auto* const engine = m_rooms.transport.LoadedEngine();
    const int playing = m_rooms.library.Entries().List().PlayingItem();
    // The library takes the size with an item only.
    if (engine == nullptr || playing < 0 || !m_rooms.transport.State().hasVideoOutput
        || m_rooms.transport.Item().kind != TransportItem::Kind::File)
        return;
    m_rooms.memory.ContinueAt(engine->Time());
    m_rooms.sequencer.PlayChosen(playing, false);
}

void PlayTools::Boost(int percent)
{
    m_rooms.transport.SetBoost(m_rooms.transport.State().boost + percent);
    const int boost = m_rooms.transport.State().boost;
    Note(boost > 100 ? Words("Volume %1 %: more than the file has, it can distort", { std::to_string(boost) })
                     : Words("Volume %1 %", { std::to_string(boost) }));
}

std::string PlayTools::TimeText() const
{
    const auto& state = m_rooms.transport.State();
    const auto total = " / " + zentaro::TimeText(RoundHalfEven(state.length / 1000));
    // Before it plays and after, a word can stand there.
    const bool isTime =
        m_rooms.transport.LoadedEngine() != nullptr && state.length > 0 && state.timeText.ends_with(total);
    if (!m_showsRemaining || !isTime)
        return state.timeText;
    return "-" + TimeOf(std::max(0.0, state.length - state.elapsed)) + total;
}

void PlayTools::ToggleRemaining()
{
    m_showsRemaining = !m_showsRemaining;
    m_rooms.face.window->StateChanged();
}

void PlayTools::NextSleepTime()
{
    const auto at = std::find(kSleepTimes.begin(), kSleepTimes.end(), m_sleepTime);
    m_sleepTime = at + 1 < kSleepTimes.end() ? *(at + 1) : kSleepTimes.front();
    m_sleep = std::make_shared<int>(m_sleepTime);
    if (m_sleepTime == 0)
        return Note(Words("Plays on, whatever the clock says"));
    Note(CountedWords(m_sleepTime, "Stops in %n minute", "Stops in %n minutes"));
    m_rooms.after(std::chrono::minutes(m_sleepTime), [this, sleep = std::weak_ptr(m_sleep)] {
        if (sleep.expired())
            return;
        m_sleepTime = 0;
        m_rooms.transport.cmdStopClick();
        Note(Words("Stopped, as the clock was told"));
    });
}

} // namespace zentaro
