#include "shell/WindowLayout.h"
#include "shell/Caption.h"
#include "shell/SkinPasses.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

using namespace zentaro;
using Edges = WindowLayout::Edges;

namespace {

Rect PressOf(const WindowLayout& layout, Button button)
{
    const auto press = layout.PressRect(button);
    const auto drawn = layout.ButtonRect(button);
    EXPECT_EQ(SharedArea(press, drawn), drawn.width * drawn.height);
    return press;
}

Rect PressOf(const BarLayout& layout, Button button)
{
    return layout.ButtonRect(button);
}

template <class Layout> void ExpectControlsApart(const Layout& layout, std::vector<Rect> parts, const Rect& area)
{
    for (std::size_t i = 0; i < kButtonCount; ++i) {
        const auto button = static_cast<Button>(i);
        const auto press = PressOf(layout, button);
        if (button == Button::SoundOff || press.width <= 0)
            continue;
        EXPECT_GE(std::min(press.width, press.height), WindowLayout::kLeastPress) << i;
        parts.push_back(press);
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

TEST(WindowLayout, all_of_a_window_comes_onto_the_screen_that_has_most_of_it)
{
    const std::array<Rect, 2> screens{ Rect{ 0, 0, 1920, 1080 }, Rect{ -1280, 0, 1280, 1024 } };
    const Rect onSecond{ -1200, 100, 388, 515 };
    EXPECT_EQ(MoveOntoScreen(onSecond, screens), onSecond);
    EXPECT_EQ(
        FitFilm({ 100, 100, 400, 500 }, { 300, 200 }, { 640, 360 }, { 0, 0, 1920, 1080 }), (Rect{ 0, 20, 740, 660 }))
        << "what lies around the film stays";
    const auto large = FitFilm({ 100, 100, 400, 500 }, { 300, 200 }, { 3840, 2160 }, { 0, 0, 1920, 1080 });
    EXPECT_EQ(large.height, 1080);
    EXPECT_EQ(large.width, 780 * 16 / 9 + 100 + 1);
    EXPECT_EQ(MoveOntoScreen({ 1800, 900, 388, 515 }, screens), (Rect{ 1532, 565, 388, 515 }));
    EXPECT_EQ(MoveOntoScreen({ -190, -100, 388, 515 }, screens), (Rect{ 0, 0, 388, 515 }));
    EXPECT_EQ(MoveOntoScreen({ -200, 100, 388, 515 }, screens), (Rect{ -388, 100, 388, 515 }));
    EXPECT_EQ(MoveOntoScreen({ 5000, 300, 388, 515 }, screens), (Rect{ 1532, 300, 388, 515 }));
    EXPECT_EQ(MoveOntoScreen({ -1900, 9, 1800, 1070 }, screens), (Rect{ -1280, 0, 1280, 1024 }));
    EXPECT_EQ(MoveOntoScreen({ 9000, 9000, 4000, 4000 }, screens), (Rect{ 0, 0, 1920, 1080 }));
    EXPECT_EQ(MoveOntoScreen(onSecond, {}), onSecond);
    // Full screen takes the screen that shows most of the window.
    EXPECT_EQ(ScreenOf({ -200, 100, 388, 515 }, screens), screens[1]);
    EXPECT_EQ(ScreenOf({ -190, 100, 388, 515 }, screens), screens[0]);
    EXPECT_EQ(ScreenOf({ 9000, 9000, 388, 515 }, screens), screens[0]);
}

TEST(WindowLayout, the_controls_keep_apart_in_the_first_window)
{
    const int width = WindowLayout::kFirstWidth;
    const int height = WindowLayout::kFirstHeight;
    const WindowLayout window(width, height);
    ExpectControlsApart(window,
        { window.Icon(), window.MenuStrip(), window.Content(), window.TimeLabel(), window.RateLabel(),
            window.SeekTrack(), window.VolumeSlider(), window.VolumeNumber() },
        { 0, 0, width, height });
    const BarLayout bar(800);
    // A picture lies with its sign's middle on the middle of the bar; the round one is made smaller.
    EXPECT_EQ(bar.PictureRect(Button::Pause, 0.25), (Rect{ 166, 17, 35, 44 }));
    EXPECT_EQ(bar.PictureRect(Button::Play, 0.5), (Rect{ 123, 2, 43, 52 }));
    EXPECT_EQ(bar.PictureRect(Button::Close, 0.5), Rect());
}

TEST(WindowLayout, the_bar_of_full_screen_goes_without_controls_before_its_track_gets_short)
{
    std::size_t before = 0;
    for (int width = 480; width <= 1920; ++width) {
        SCOPED_TRACE(width);
        const BarLayout bar(width);
        EXPECT_GE(bar.SeekTrack().width, BarLayout::kLeastTrack);
        std::vector<Rect> parts{ bar.TimeLabel(), bar.SeekTrack() };
        for (const auto& rect : { bar.VolumeSlider(), bar.VolumeNumber() }) {
            if (rect.width > 0)
                parts.push_back(rect);
        }
        ExpectControlsApart(bar, parts, { 0, 0, width, BarLayout::kHeight });
        for (const auto button : { Button::Play, Button::Pause, Button::SoundOn, Button::FullScreen })
            EXPECT_GT(bar.ButtonRect(button).width, 0);
        for (const auto button : { Button::Previous, Button::Rewind, Button::Stop })
            parts.push_back(bar.ButtonRect(button));
        const auto shown = static_cast<std::size_t>(std::ranges::count_if(parts, [](auto& r) { return r.width > 0; }));
        EXPECT_GE(shown, before); // nothing goes where there is more room
        before = shown;
    }
    EXPECT_EQ(before, 7u);
    EXPECT_EQ(BarLayout(787).VolumeNumber(), Rect());
    EXPECT_EQ(BarLayout(788).VolumeNumber(), (Rect{ 700, 18, 30, 20 }));
    EXPECT_EQ(BarLayout(788).SeekTrack(), (Rect{ 430, 16, 120, 24 }));
    EXPECT_GT(BarLayout(640).ButtonRect(Button::Rewind).width, 0);
}

TEST(WindowLayout, two_panes_never_need_more_than_there_is)
{
    for (int room = -20; room < 800; ++room) {
        const auto share = SharePanes(room);
        const int video = room - PaneShare::kSplitter - share.list;
        EXPECT_TRUE(share.list == 0 || std::min(share.list, video) >= share.minimum) << room;
    }
    EXPECT_EQ(SharePanes(85).list, 0);
    EXPECT_EQ(SharePanes(WindowLayout(360, WindowLayout::kMinimumHeight).Content().height).list, 55);
    EXPECT_EQ(SharePanes(400).minimum, 96);
    EXPECT_EQ(SharePanes(400).list, 180);
    EXPECT_EQ(SharePanes(1000).list, 280);
}

TEST(Caption, follows_the_title_bar_mode)
{
    EXPECT_EQ(CaptionText({ 0, "a.avi", "/clips/a.avi" }), "Zentaro - (a.avi)");
    EXPECT_EQ(CaptionText({ 1, "a.avi", "/clips/a.avi" }), "Zentaro - (/clips/a.avi)");
    EXPECT_EQ(CaptionText({ 2, "a.avi", "/clips/a.avi" }), "Zentaro");
}
