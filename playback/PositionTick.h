#pragma once

#include <optional>
#include <string>

namespace zentaro {

/// One look at the engine, every 500 ms.
struct EngineReading {
    bool isLoaded = false; ///< an engine holds an item
    int state = 0;         ///< Engine's numbers
    double position = 0;   ///< 0.0 to 1.0
    double time = 0;       ///< ms, below 0 when unknown
    double length = 0;     ///< ms, 0 or below when unknown
    bool hasVideoOutput = false;
    bool isDisc = false;
};

/// What is to be shown, and whether the item has ended.
struct PositionTick {
    bool isLoading = false;      ///< the rate label reads "Loading..."
    std::optional<int> progress; ///< percent; nothing leaves the bar as it is
    std::string timeText;
    std::optional<bool> showAudioLogo; ///< nothing leaves it as it is
    bool hasEnded = false;
    /// With hasEnded: nothing of the item was ever seen or heard.
    bool hasFailed = false;
};

/// Whether somebody may be watching: a video is playing.
bool HoldsOffSleep(const EngineReading& reading);

/// Works out one tick. `mediaControlsEnabled`: an end counts only while it is set; the caller clears it on an end. With
/// `byEngine` the clock ends nothing.
PositionTick ReadPosition(const EngineReading& reading, bool mediaControlsEnabled, bool byEngine = false);

} // namespace zentaro
