#include "shell/SeekBar.h"

#include <gtest/gtest.h>

using namespace zentaro;

namespace {

constexpr bool kLeft = true;
constexpr bool kOther = false;
constexpr bool kOn = true;

class SeekBarTest : public testing::Test {
protected:
    SeekBarTest() { bar.SetTrackWidth(200); }
    SeekBar bar;
};

} // namespace

TEST_F(SeekBarTest, the_left_button_fills_up_to_the_pointer_and_seeks_there_and_another_to_the_end_of_the_fill)
{
    EXPECT_EQ(bar.PressOnTrack(100, kLeft, kOn), 0.5);
    EXPECT_TRUE(bar.IsOnFill(99) && !bar.IsOnFill(100));
    EXPECT_EQ(bar.PointerOnFill(50, kLeft, kOn), 0.25);
    EXPECT_EQ(bar.MoveOnTrack(150, kLeft, kOn), 0.75);
    EXPECT_EQ(bar.PressOnTrack(20, kOther, kOn), 0.75);
    EXPECT_FALSE(bar.MoveOnTrack(150, kOther, kOn) || bar.PointerOnFill(20, kOther, kOn));
    EXPECT_EQ(bar.PressOnTrack(197, kLeft, kOn), 197.0 / 200);
    // The last two pixels do not seek, and nothing does while the controls are off.
    for (const auto& [x, isOn] : { std::pair(198, kOn), { 500, kOn }, { 100, !kOn } }) {
        for (const bool button : { kLeft, kOther })
            EXPECT_FALSE(bar.PressOnTrack(x, button, isOn) || bar.MoveOnTrack(x, button, isOn)
                || bar.PointerOnFill(x, button, isOn));
        EXPECT_EQ(bar.TimeUnder(x, 60'000, isOn), "");
    }
    EXPECT_EQ(bar.FillWidth(), 197);
    EXPECT_EQ(bar.PointerOnFill(-20, kLeft, kOn), 0);
    EXPECT_EQ(bar.FillWidth(), 0);
    EXPECT_FALSE(SeekBar().PressOnTrack(-10, kLeft, kOn));
    EXPECT_EQ(bar.TimeUnder(100, 7'450'000, kOn), "01:02:05");
    EXPECT_EQ(bar.TimeUnder(-1, 7'450'000, kOn), "00:00:00");
    EXPECT_EQ(bar.TimeUnder(100, 0, kOn), "");
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
