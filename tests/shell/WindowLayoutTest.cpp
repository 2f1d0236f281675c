#include "shell/WindowLayout.h"
#include "shell/SkinPasses.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

using namespace zentaro;

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

TEST(SkinPasses, keep_what_takes_the_pointer_where_they_drew_it_last)
{
    SkinRects rects;
    PaintPass(388, 515, {}, rects);
    PaintPass(800, 600, {}, rects);
    EXPECT_EQ(rects.Of(Button::Play), (Rect{ 366, 513, 69, 83 }));
    EXPECT_EQ(rects.Of(Button::Close), (Rect{ 770, 1, 23, 24 }));
    EXPECT_EQ(rects.Of(Button::PushButton), Rect());
    EXPECT_EQ(rects.titleBar, Rect());
    BackgroundPass(800, 600, rects);
    EXPECT_EQ(rects.titleBar, (Rect{ 0, 0, 800, 31 }));
    EXPECT_EQ(rects.menuButtons[2], (Rect{ 106, 28, 43, 23 }));
}
