#pragma once

#include <memory>

namespace zentaro::platform {

/// Keeps the screen on and the computer awake.
class SleepInhibitor {
public:
    /// Lets go of what is held.
    virtual ~SleepInhibitor() = default;

    /// Holds the screen saver and sleep off, or lets them come again; the same value again changes nothing. Returns at
    /// once. Where the system has nobody to ask, nothing happens.
    virtual void Hold(bool held) = 0;

    /// Asks nothing of the system yet.
    static std::unique_ptr<SleepInhibitor> Open();
};

} // namespace zentaro::platform
