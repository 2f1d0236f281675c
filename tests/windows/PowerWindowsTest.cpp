#include "platform/Power_windows.h"

#include <gmock/gmock.h>

#include <memory>
#include <utility>
#include <vector>

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

// The system's own function is nowhere near these tests.
TEST(PowerWindows, restart_and_power_off_have_their_flags_and_force_nothing)
{
    std::vector<std::pair<UINT, DWORD>> calls;
    WindowsPower power([&](UINT flags, DWORD reason) {
        calls.emplace_back(flags, reason);
        return TRUE;
    });
    EXPECT_TRUE(power.Restart());
    EXPECT_TRUE(power.PowerOff());
    EXPECT_THAT(calls, testing::ElementsAre(std::pair(2U, 0xFFFFFFFFUL), std::pair(8U, 0xFFFFFFFFUL)));
}

TEST(PowerWindows, the_privilege_is_held_once_it_was_enabled)
{
    ASSERT_FALSE(HasShutdownPrivilege());
    WindowsPower([](UINT, DWORD) { return FALSE; }).EnableShutdownPrivilege();
    EXPECT_TRUE(HasShutdownPrivilege());
}
