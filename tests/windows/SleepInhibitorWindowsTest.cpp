#include "platform/Power_windows.h"

#include <gmock/gmock.h>

#include <vector>

using zentaro::platform::WindowsSleepInhibitor;

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
        inhibitor.Hold(false);
        inhibitor.Hold(true);
        inhibitor.Hold(true);
        inhibitor.Hold(false);
        inhibitor.Hold(true);
    }
    EXPECT_THAT(calls, testing::ElementsAre(held, released, held, released));
}
