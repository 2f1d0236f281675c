#pragma once

#include "platform/SleepInhibitor.h"

#include <functional>
#include <windows.h>

namespace zentaro::platform {

/// Over the system's own call, which is passed in: SetThreadExecutionState, or a test's stand-in for it. What it is
/// told belongs to the calling thread, so every call comes from the same one.
class WindowsSleepInhibitor : public SleepInhibitor {
public:
    using StateFunction = std::function<EXECUTION_STATE(EXECUTION_STATE)>;

    explicit WindowsSleepInhibitor(StateFunction setState);
    ~WindowsSleepInhibitor() override;

    void Hold(bool held) override;

private:
    StateFunction m_setState;
    bool m_held = false;
};

} // namespace zentaro::platform
