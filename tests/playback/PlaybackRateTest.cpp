#include "playback/PlaybackRate.h"

#include <gtest/gtest.h>

using namespace zentaro;

TEST(PlaybackRate, doubles_up_to_16_and_says_when_it_is_there)
{
    PlaybackRate rate;
    for (const double expected : { 2.0, 4.0, 8.0 })
        EXPECT_EQ(rate.IncreaseRate(true), (RateChange{ .engineRate = expected, .decreaseEnabled = true }));
    EXPECT_EQ(
        rate.IncreaseRate(true), (RateChange{ .engineRate = 16, .increaseEnabled = false, .decreaseEnabled = true }));
    EXPECT_EQ(rate.IncreaseRate(true), RateChange());
    EXPECT_EQ(rate.Value(), 16);
    EXPECT_EQ(rate.DecreaseRate(true), (RateChange{ .engineRate = 8, .increaseEnabled = true }));
}

TEST(PlaybackRate, halves_down_to_an_eighth_and_says_when_it_is_there)
{
    PlaybackRate rate;
    for (const double expected : { 0.5, 0.25 })
        EXPECT_EQ(rate.DecreaseRate(true), (RateChange{ .engineRate = expected, .increaseEnabled = true }));
    EXPECT_EQ(rate.DecreaseRate(true),
        (RateChange{ .engineRate = 0.125, .increaseEnabled = true, .decreaseEnabled = false }));
    EXPECT_EQ(rate.DecreaseRate(true), RateChange());
    EXPECT_EQ(rate.IncreaseRate(true), (RateChange{ .engineRate = 0.25, .decreaseEnabled = true }));
}

TEST(PlaybackRate, without_an_item_steps_change_the_value_alone_and_a_reset_nothing)
{
    PlaybackRate rate;
    EXPECT_EQ(rate.IncreaseRate(false), (RateChange{ .decreaseEnabled = true }));
    EXPECT_EQ(rate.ResetRate(false), RateChange());
    EXPECT_EQ(rate.Value(), 2);
    EXPECT_EQ(rate.DecreaseRate(true).engineRate, 1.0);
}

TEST(PlaybackRate, a_reset_enables_both_commands_and_a_new_item_starts_at_1)
{
    PlaybackRate rate;
    EXPECT_EQ(rate.IncreaseRate(true).engineRate, 2.0);
    EXPECT_EQ(rate.ResetRate(true), (RateChange{ .engineRate = 1, .increaseEnabled = true, .decreaseEnabled = true }));
    EXPECT_EQ(rate.DecreaseRate(true).engineRate, 0.5);
    rate.ItemStarted();
    EXPECT_EQ(rate.Value(), 1);
}

TEST(PlaybackRate, the_label_has_the_shortest_decimal)
{
    EXPECT_EQ(RateLabelText(1), "Playing rate:1x");
    EXPECT_EQ(RateLabelText(10), "Playing rate:10x");
    EXPECT_EQ(RateLabelText(0.5), "Playing rate:0.5x");
    EXPECT_EQ(RateLabelText(0.125), "Playing rate:0.125x");
    EXPECT_EQ(RateLabelText(static_cast<double>(1.1F)), "Playing rate:1.1x");
}
