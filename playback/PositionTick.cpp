#include "playback/PositionTick.h"

#include "base/Numbers.h"
#include "playback/Engine.h"
#include "playback/TimeText.h"

#include <algorithm>

namespace zentaro {

namespace {

/// Twice the total or more is no end, and neither is an unknown total.
bool EndedByTheClock(const EngineReading& reading)
{
    const auto elapsed = RoundHalfEven(reading.time / 1000);
    const auto total = RoundHalfEven(reading.length / 1000);
    return total != 0 && elapsed / total == 1;
}

} // namespace

bool HoldsOffSleep(const EngineReading& reading)
{
    return reading.isLoaded && reading.state == Engine::kPlaying && reading.hasVideoOutput;
}

PositionTick ReadPosition(const EngineReading& reading, bool mediaControlsEnabled, bool byEngine)
{
    PositionTick tick;
    if (!reading.isLoaded) {
        tick.timeText = TimeLabelText(0, 0);
        return tick;
    }
    const bool isOpen = reading.state >= Engine::kPlaying;
    tick.isLoading = mediaControlsEnabled && !isOpen;
    if (reading.position > 0)
        tick.progress = RoundHalfEven(reading.position * 100);
    tick.timeText = TimeLabelText(std::max(reading.time, 0.0), std::max(reading.length, 0.0));
    // A video has no output yet in its first moments, and when it has ended no longer: the logo would flash.
    const bool isMoving = reading.time > 0 || reading.position > 0;
    if (isOpen && reading.state < Engine::kStopped && (reading.hasVideoOutput || isMoving))
        tick.showAudioLogo = !reading.hasVideoOutput;
    // The clock alone misses half of all files: its last reading can lie well before the total. The clock of a disc
    // stands at the total while a menu waits.
    const bool endedByState = reading.state >= Engine::kEnded;
    tick.hasEnded =
        mediaControlsEnabled && (endedByState || (!byEngine && !reading.isDisc && EndedByTheClock(reading)));
    tick.hasFailed = tick.hasEnded && reading.state == Engine::kFailed;
    return tick;
}

} // namespace zentaro
