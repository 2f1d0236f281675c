#include "shell/WindowLayout.h"
#include "shell/Caption.h"
#include "shell/SkinPasses.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

using namespace zentaro;
using Edges = WindowLayout::Edges;

namespace {

template <class Layout> void ExpectControlsApart(const Layout& layout, std::vector<Rect> parts, const Rect& area)
{
    for (std::size_t i = 0; i < kButtonCount; ++i) {
        const auto button = static_cast<Button>(i);
        if (button != Button::SoundOff && layout.ButtonRect(button).width > 0)
            parts.push_back(layout.ButtonRect(button));
    }
    for (const auto& part : parts) {
        EXPECT_GT(part.width * part.height, 0);
        EXPECT_EQ(SharedArea(part, area), part.width * part.height);
        for (const auto& other : parts)
            EXPECT_TRUE(&part == &other || SharedArea(part, other) == 0) << part.left << ',' << other.left;
    }
}

} // namespace

TEST(WindowLayout, edges_and_corners_take_hold_to_the_pixel_and_alike_on_all_sides)
{
    constexpr int kWidth = 400;
    constexpr int kHeight = 300;
    const WindowLayout layout(kWidth, kHeight);
    struct Hold {
        int x, y;
        bool atSide, atTop;
    };
    for (const auto& [x, y, atSide, atTop] : { Hold{ 0, 0, true, true }, Hold{ 7, 7, true, true },
             Hold{ 7, 15, true, true }, Hold{ 7, 16, true, false }, Hold{ 15, 7, true, true },
             Hold{ 16, 7, false, true }, Hold{ 8, 8, false, false }, Hold{ 0, 149, true, false },
             Hold{ 199, 0, false, true }, Hold{ -1, 5, false, false }, Hold{ 5, -1, false, false } }) {
        SCOPED_TRACE(testing::Message() << x << ',' << y);
        EXPECT_EQ(layout.EdgesAt(x, y), (Edges{ atSide, atTop, false, false }));
        EXPECT_EQ(layout.EdgesAt(kWidth - 1 - x, y), (Edges{ false, atTop, atSide, false }));
        EXPECT_EQ(layout.EdgesAt(x, kHeight - 1 - y), (Edges{ atSide, false, false, atTop }));
        EXPECT_EQ(layout.EdgesAt(kWidth - 1 - x, kHeight - 1 - y), (Edges{ false, false, atSide, atTop }));
    }
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
    // Full screen takes the screen that shows most of the window.
    EXPECT_EQ(ScreenOf({ -200, 100, 388, 515 }, screens), screens[1]);
    EXPECT_EQ(ScreenOf({ -190, 100, 388, 515 }, screens), screens[0]);
    EXPECT_EQ(ScreenOf({ 9000, 9000, 388, 515 }, screens), screens[0]);
}

TEST(WindowLayout, the_controls_keep_apart_in_the_first_window_and_on_the_narrowest_screen)
{
    const int width = WindowLayout::kFirstWidth;
    const int height = WindowLayout::kFirstHeight;
    const WindowLayout window(width, height);
    ExpectControlsApart(window,
        { window.Icon(), window.MenuStrip(), window.Content(), window.TimeLabel(), window.RateLabel(),
            window.SeekTrack(), window.VolumeSlider(), window.VolumeNumber() },
        { 0, 0, width, height });
    const BarLayout bar(800);
    ExpectControlsApart(bar, { bar.TimeLabel(), bar.SeekTrack(), bar.VolumeSlider(), bar.VolumeNumber() },
        { 0, 0, 800, BarLayout::kHeight });
    // A picture lies with its sign's middle on the middle of the bar; the round one is made smaller.
    EXPECT_EQ(bar.PictureRect(Button::Pause, 0.25), (Rect{ 166, 17, 35, 44 }));
    EXPECT_EQ(bar.PictureRect(Button::Play, 0.5), (Rect{ 123, 2, 43, 52 }));
    EXPECT_EQ(bar.PictureRect(Button::Close, 0.5), Rect());
}

TEST(Caption, follows_the_title_bar_mode)
{
    EXPECT_EQ(CaptionText({ 0, "a.avi", "/clips/a.avi" }), "Zentaro - (a.avi)");
    EXPECT_EQ(CaptionText({ 1, "a.avi", "/clips/a.avi" }), "Zentaro - (/clips/a.avi)");
    EXPECT_EQ(CaptionText({ 2, "a.avi", "/clips/a.avi" }), "Zentaro");
}
