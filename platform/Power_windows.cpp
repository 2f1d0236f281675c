#include "platform/Power_windows.h"
#include "platform/System_windows.h"

#include <utility>

namespace zentaro::platform {
namespace {

constexpr DWORD kUnspecifiedReason = 0xFFFFFFFF;

} // namespace

WindowsPower::WindowsPower(ExitFunction exitWindows)
    : m_exitWindows(std::move(exitWindows))
{
}

void WindowsPower::EnableShutdownPrivilege()
{
    // Without the right the later request is refused, and that is time enough to notice.
    HANDLE token = nullptr;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &token) == 0)
        return;
    TOKEN_PRIVILEGES wanted{};
    wanted.PrivilegeCount = 1;
    wanted.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    TOKEN_PRIVILEGES before{};
    DWORD length = 0;
    if (LookupPrivilegeValueW(nullptr, L"SeShutdownPrivilege", &wanted.Privileges[0].Luid) != 0)
        AdjustTokenPrivileges(token, FALSE, &wanted, sizeof before, &before, &length);
    CloseHandle(token);
}

Result<void> WindowsPower::Exit(UINT flags)
{
    if (m_exitWindows(flags, kUnspecifiedReason) == 0)
        return SystemError("Ending the session", GetLastError());
    return {};
}

std::unique_ptr<Power> Power::Open()
{
    return std::make_unique<WindowsPower>(&ExitWindowsEx);
}

WindowsSleepInhibitor::WindowsSleepInhibitor(StateFunction setState)
    : m_setState(std::move(setState))
{
}

WindowsSleepInhibitor::~WindowsSleepInhibitor()
{
    Hold(false);
}

void WindowsSleepInhibitor::Hold(bool held)
{
    if (std::exchange(m_held, held) == held)
        return;
    // Without ES_CONTINUOUS it would only start the idle clock anew.
    const EXECUTION_STATE wanted = held ? ES_DISPLAY_REQUIRED | ES_SYSTEM_REQUIRED : 0;
    m_setState(ES_CONTINUOUS | wanted);
}

std::unique_ptr<SleepInhibitor> SleepInhibitor::Open()
{
    return std::make_unique<WindowsSleepInhibitor>(&SetThreadExecutionState);
}

} // namespace zentaro::platform
