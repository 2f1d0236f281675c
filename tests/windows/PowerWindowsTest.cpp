#include "platform/Power_windows.h"

#include <gtest/gtest.h>

using namespace zentaro;
using namespace zentaro::platform;

namespace {

bool HasShutdownPrivilege()
{
    HANDLE token = nullptr;
    PRIVILEGE_SET wanted{};
    wanted.PrivilegeCount = 1;
    wanted.Control = PRIVILEGE_SET_ALL_NECESSARY;
    BOOL isHeld = FALSE;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == 0)
        return false;
    if (LookupPrivilegeValueW(nullptr, L"SeShutdownPrivilege", &wanted.Privilege[0].Luid) != 0)
        PrivilegeCheck(token, &wanted, &isHeld);
    CloseHandle(token);
    return isHeld != FALSE;
}

} // namespace

TEST(PowerWindows, the_privilege_is_held_once_it_was_enabled)
{
    ASSERT_FALSE(HasShutdownPrivilege());
    WindowsPower([](UINT, DWORD) { return FALSE; }).EnableShutdownPrivilege();
    EXPECT_TRUE(HasShutdownPrivilege());
}
