#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <limits>

using namespace zentaro;

TEST(Numbers, halves_go_to_the_even_neighbour_and_the_range_is_held)
{
    EXPECT_EQ(RoundHalfEven(0.5), 0);
    EXPECT_EQ(RoundHalfEven(1.5), 2);
    EXPECT_EQ(RoundHalfEven(-2.5), -2);
    EXPECT_EQ(RoundHalfEven(1e300), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(RoundHalfEven(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(RoundDown(-0.1), -1);
    EXPECT_EQ(RoundDown(2.999), 2);
}

TEST(Numbers, print_form_has_room_for_the_sign_and_a_blank_behind)
{
    EXPECT_EQ(PrintForm(0), " 0 ");
    EXPECT_EQ(PrintForm(388), " 388 ");
    EXPECT_EQ(PrintForm(-1200), "-1200 ");
    EXPECT_EQ(PrintForm(std::numeric_limits<std::int32_t>::min()), "-2147483648 ");
}

TEST(Numbers, an_integer_text_holds_nothing_else)
{
    EXPECT_EQ(ParseInteger("-17"), -17);
    EXPECT_FALSE(ParseInteger(""));
    EXPECT_FALSE(ParseInteger("12a"));
    EXPECT_FALSE(ParseInteger("2147483648"));
}
