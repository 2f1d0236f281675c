#include "platform/Power_windows.h"

#include <gmock/gmock.h>

#include <utility>
#include <vector>

namespace zentaro::platform {
namespace {

using testing::ElementsAre;

bool HasShutdownPrivilege()
{
    HANDLE token = nullptr;
    PRIVILEGE_SET wanted{ 1, PRIVILEGE_SET_ALL_NECESSARY, {} };
    BOOL isHeld = FALSE;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == 0)
        return false;
    if (LookupPrivilegeValueW(nullptr, L"SeShutdownPrivilege", &wanted.Privilege[0].Luid) != 0)
        PrivilegeCheck(token, &wanted, &isHeld);
    CloseHandle(token);
    return isHeld != FALSE;
}

// The system's own function is nowhere near this test.
TEST(PowerWindows, restart_and_power_off_have_their_flags_force_nothing_and_need_a_privilege)
{
    std::vector<std::pair<UINT, DWORD>> calls;
    WindowsPower power([&](UINT flags, DWORD reason) {
        calls.emplace_back(flags, reason);
        return calls.size() < 3;
    });
    ASSERT_FALSE(HasShutdownPrivilege());
    power.EnableShutdownPrivilege();
    EXPECT_TRUE(HasShutdownPrivilege());
    EXPECT_TRUE(power.Restart());
    EXPECT_TRUE(power.PowerOff());
    EXPECT_FALSE(power.PowerOff());
    const std::pair off(8U, 0xFFFFFFFFUL);
    EXPECT_THAT(calls, ElementsAre(std::pair(2U, 0xFFFFFFFFUL), off, off));
}

TEST(SleepInhibitorWindows, display_and_system_are_held_once_and_let_go_at_the_latest_with_the_object)
{
    constexpr EXECUTION_STATE held = ES_CONTINUOUS | ES_DISPLAY_REQUIRED | ES_SYSTEM_REQUIRED;
    constexpr EXECUTION_STATE released = ES_CONTINUOUS;
    std::vector<EXECUTION_STATE> calls;
    {
        WindowsSleepInhibitor inhibitor([&](EXECUTION_STATE state) {
            calls.push_back(state);
            return state;
        });
        for (const bool isHeld : { false, true, true, false, true })
            inhibitor.Hold(isHeld);
    }
    EXPECT_THAT(calls, ElementsAre(held, released, held, released));
}

} // namespace
} // namespace zentaro::platform
