#include "shell/SeekBar.h"

#include <gtest/gtest.h>

using namespace zentaro;

namespace {

class SeekBarTest : public testing::Test {
protected:
    SeekBarTest() { bar.SetTrackWidth(200); }

    SeekBar bar;
    static constexpr bool kLeft = true;
    static constexpr bool kOther = false;
    static constexpr bool kOn = true;
};

} // namespace

TEST_F(SeekBarTest, a_left_press_or_drag_fills_up_to_the_pointer_and_seeks_there)
{
    EXPECT_EQ(bar.PressOnTrack(100, kLeft, kOn), 0.5);
    EXPECT_TRUE(bar.IsOnFill(99) && !bar.IsOnFill(100));
    EXPECT_EQ(bar.PointerOnFill(50, kLeft, kOn), 0.25);
    EXPECT_EQ(bar.MoveOnTrack(150, kLeft, kOn), 0.75);
    EXPECT_EQ(bar.FillWidth(), 150);
    EXPECT_EQ(bar.PointerOnFill(-20, kLeft, kOn), 0);
    EXPECT_EQ(bar.FillWidth(), 0);
}

TEST_F(SeekBarTest, another_button_seeks_only_by_a_press_on_the_track_and_to_the_end_of_the_fill)
{
    bar.SetProgress(40);
    EXPECT_EQ(bar.PressOnTrack(150, kOther, kOn), 0.4);
    EXPECT_FALSE(bar.MoveOnTrack(150, kOther, kOn));
    EXPECT_FALSE(bar.PointerOnFill(20, kOther, kOn));
    EXPECT_EQ(bar.FillWidth(), 80);
}

TEST_F(SeekBarTest, the_last_two_pixels_do_not_seek)
{
    EXPECT_FALSE(bar.PressOnTrack(198, kLeft, kOn));
    EXPECT_FALSE(bar.PressOnTrack(198, kOther, kOn));
    EXPECT_FALSE(bar.MoveOnTrack(500, kLeft, kOn));
    EXPECT_FALSE(bar.PointerOnFill(198, kLeft, kOn));
    EXPECT_EQ(bar.TimeUnder(198, 60'000, kOn), "");
    EXPECT_EQ(bar.FillWidth(), 0);
    EXPECT_EQ(bar.PressOnTrack(197, kLeft, kOn), 197.0 / 200);
}

TEST_F(SeekBarTest, nothing_seeks_while_the_controls_are_off_or_the_track_has_no_width)
{
    bar.SetProgress(40);
    EXPECT_FALSE(bar.PressOnTrack(100, kLeft, !kOn) || bar.MoveOnTrack(100, kLeft, !kOn));
    EXPECT_FALSE(bar.PointerOnFill(10, kLeft, !kOn) || bar.PressOnTrack(100, kOther, !kOn));
    EXPECT_EQ(bar.TimeUnder(100, 60'000, !kOn), "");
    EXPECT_EQ(bar.FillWidth(), 80);
    EXPECT_FALSE(SeekBar().PressOnTrack(-10, kLeft, kOn));
}

TEST_F(SeekBarTest, the_fill_keeps_within_the_track_and_its_share_of_it)
{
    bar.SetProgress(145); // some files run on past their own length
    EXPECT_EQ(bar.FillWidth(), 200);
    bar.SetProgress(25);
    bar.SetTrackWidth(400);
    EXPECT_EQ(bar.FillWidth(), 100);
    bar.SetTrackWidth(0);
    bar.SetTrackWidth(400);
    EXPECT_EQ(bar.FillWidth(), 0);
}

TEST_F(SeekBarTest, the_time_under_the_pointer_is_the_one_a_press_seeks_to)
{
    EXPECT_EQ(bar.TimeUnder(100, 7'450'000, kOn), "01:02:05");
    EXPECT_EQ(bar.TimeUnder(-1, 7'450'000, kOn), "00:00:00");
    EXPECT_EQ(bar.TimeUnder(100, 0, kOn), "");
}
