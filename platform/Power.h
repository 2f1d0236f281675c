#pragma once

#include "base/Result.h"

#include <memory>

namespace zentaro::platform {

/// Restarts the computer or switches it off. Nothing is forced: programs and the system's rules can refuse.
class Power {
public:
    virtual ~Power() = default;

    /// Once at start-up, for systems on which a process must claim the right before it uses it.
    virtual void EnableShutdownPrivilege() = 0;
    /// Success means that the system has taken the request, or that it is on its way: a refusal that comes later is
    /// silent. Returns at once.
    virtual Result<void> Restart() = 0;
    virtual Result<void> PowerOff() = 0;

    /// Asks nothing of the system yet.
    static std::unique_ptr<Power> Open();
};

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
