#include "shell/WindowLayout.h"
#include "shell/Caption.h"
#include "shell/SkinPasses.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

using namespace zentaro;
using Edges = WindowLayout::Edges;

TEST(WindowLayout, edges_and_corners_take_hold_and_the_inside_does_not)
{
    const WindowLayout layout(400, 300);
    EXPECT_EQ(layout.EdgesAt(0, 150), (Edges{ true, false, false, false }));
    EXPECT_EQ(layout.EdgesAt(200, 7), (Edges{ false, true, false, false }));
    EXPECT_EQ(layout.EdgesAt(399, 299), (Edges{ false, false, true, true }));
    EXPECT_EQ(layout.EdgesAt(3, 12), (Edges{ true, true, false, false }));
    EXPECT_EQ(layout.EdgesAt(390, 2), (Edges{ false, true, true, false }));
    EXPECT_FALSE(layout.EdgesAt(8, 150).Any());
    EXPECT_FALSE(layout.EdgesAt(-1, 150).Any());
    EXPECT_FALSE(layout.EdgesAt(400, 150).Any());
}

TEST(WindowLayout, a_window_off_every_screen_comes_back_and_one_that_shows_stays)
{
    const std::array<Rect, 2> screens{ Rect{ 0, 0, 1920, 1080 }, Rect{ -1280, 0, 1280, 1024 } };
    const Rect onSecond{ -1200, 100, 388, 515 };
    EXPECT_EQ(MoveOntoScreen(onSecond, screens), onSecond);
    const Rect halfOut{ 1800, 900, 388, 515 };
    EXPECT_EQ(MoveOntoScreen(halfOut, screens), halfOut);
    EXPECT_EQ(MoveOntoScreen({ 5000, 300, 388, 515 }, screens), (Rect{ 1532, 300, 388, 515 }));
    // The title bar above the screen cannot be reached, though most of the window shows.
    EXPECT_EQ(MoveOntoScreen({ 100, -100, 388, 515 }, screens), (Rect{ 100, 0, 388, 515 }));
    EXPECT_EQ(MoveOntoScreen({ 9000, 9000, 4000, 4000 }, screens), (Rect{ 0, 0, 1920, 1080 }));
    EXPECT_EQ(MoveOntoScreen(onSecond, {}), onSecond);
}

TEST(WindowLayout, full_screen_goes_to_the_screen_that_shows_most_of_the_window)
{
    const std::array<Rect, 2> screens{ Rect{ 0, 0, 1920, 1080 }, Rect{ -1280, 0, 1280, 1024 } };
    EXPECT_EQ(ScreenOf({ -200, 100, 388, 515 }, screens), screens[1]);
    EXPECT_EQ(ScreenOf({ -190, 100, 388, 515 }, screens), screens[0]);
    EXPECT_EQ(ScreenOf({ 9000, 9000, 388, 515 }, screens), screens[0]);
}

TEST(BarLayout, the_controls_keep_apart_on_the_narrowest_screen)
{
    const BarLayout layout(800);
    std::vector<Rect> parts{ layout.TimeLabel(), layout.SeekTrack(), layout.VolumeSlider(), layout.VolumeNumber() };
    for (std::size_t i = 0; i < kButtonCount; ++i) {
        const auto button = static_cast<Button>(i);
        if (button != Button::SoundOff && layout.ButtonRect(button).width > 0)
            parts.push_back(layout.ButtonRect(button));
    }
    for (const auto& part : parts) {
        EXPECT_EQ(SharedArea(part, { 0, 0, 800, BarLayout::kHeight }), part.width * part.height);
        for (const auto& other : parts)
            EXPECT_TRUE(&part == &other || SharedArea(part, other) == 0);
    }
}

TEST(Caption, follows_the_title_bar_mode)
{
    EXPECT_EQ(CaptionText({ 0, "a.avi", "/clips/a.avi" }), "Zentaro - (a.avi)");
    EXPECT_EQ(CaptionText({ 1, "a.avi", "/clips/a.avi" }), "Zentaro - (/clips/a.avi)");
    EXPECT_EQ(CaptionText({ 2, "a.avi", "/clips/a.avi" }), "Zentaro");
}
