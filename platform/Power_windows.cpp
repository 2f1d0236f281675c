#include "platform/Power_windows.h"

#include "platform/SystemError_windows.h"

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

} // namespace zentaro::platform
