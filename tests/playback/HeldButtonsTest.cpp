#include "playback/HeldButtons.h"

#include <gtest/gtest.h>

using namespace zentaro;

TEST(HeldButtons, fast_forward_ends_once_however_often_it_is_told_to)
{
    HeldButtons held;
    EXPECT_FALSE(held.ReleaseAll());
    EXPECT_EQ(held.PressFastForward(), 10.0);
    EXPECT_EQ(held.ReleaseAll(), 1.0);
    EXPECT_FALSE(held.ReleaseFastForward());
}

TEST(HeldButtons, rewind_steps_back_a_thousandth_per_tick_while_it_is_held)
{
    HeldButtons held;
    held.PressRewind(true);
    double position = 0.5;
    for (int tick = 0; tick < 100; ++tick)
        position = held.RewindTick(position).value();
    EXPECT_NEAR(position, 0.4, 1e-9);
    EXPECT_EQ(held.RewindTick(0.0004), 0);
    EXPECT_FALSE(held.RewindTick(-1)); // the engine has no position yet
    held.ReleaseRewind();
    EXPECT_FALSE(held.IsRewinding());
    EXPECT_FALSE(held.RewindTick(0.5)); // a tick that was on its way
}

TEST(HeldButtons, rewind_needs_an_item_and_ends_with_it)
{
    HeldButtons held;
    held.PressRewind(false);
    EXPECT_FALSE(held.IsRewinding());
    held.PressRewind(true);
    EXPECT_FALSE(held.ReleaseAll()); // leaves the rate alone
    EXPECT_FALSE(held.IsRewinding());
}
