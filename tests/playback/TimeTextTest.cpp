#include "playback/TimeText.h"

#include <gtest/gtest.h>

using namespace zentaro;

TEST(TimeText, hours_minutes_and_seconds_have_two_digits_or_more)
{
    EXPECT_EQ(TimeText(0), "00:00:00");
    EXPECT_EQ(TimeText(3725), "01:02:05");
    EXPECT_EQ(TimeText(360'000), "100:00:00");
    EXPECT_EQ(TimeText(-1), "00:00:00");
}

TEST(TimeText, the_label_rounds_both_times_half_to_even)
{
    EXPECT_EQ(TimeLabelText(500, 59'600), "00:00:00 / 00:01:00");
    EXPECT_EQ(TimeLabelText(1'500, 2'500), "00:00:02 / 00:00:02");
}
