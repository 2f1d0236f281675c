#pragma once

#include "platform/Power.h"

#include <functional>
#include <windows.h>

namespace zentaro::platform {

/// Power over the system's own call, which is passed in: ExitWindowsEx, or a test's stand-in for it.
class WindowsPower : public Power {
public:
    using ExitFunction = std::function<BOOL(UINT flags, DWORD reason)>;

    explicit WindowsPower(ExitFunction exitWindows);

    void EnableShutdownPrivilege() override;
    Result<void> Restart() override { return Exit(EWX_REBOOT); }
    Result<void> PowerOff() override { return Exit(EWX_POWEROFF); }

private:
    Result<void> Exit(UINT flags);

    ExitFunction m_exitWindows;
};

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
