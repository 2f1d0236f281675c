#include "playlist/FancyListLayout.h"
#include "playlist/Playlist.h"

#include <gtest/gtest.h>

#include <optional>

namespace zentaro {
namespace {

constexpr int kNone = FancyListItems::kNone;

struct CountingScreen : FancyListObserver {
    void RepaintRequested() override { ++repaints; }
    void ListChanged() override { ++changes; }
    int repaints = 0;
    int changes = 0;
};

class FancyListLayoutTest : public testing::Test {
protected:
    // Rows as the main window sets them, on a surface of six and a bit.
    FancyListLayoutTest()
    {
        layout->SetImageWidth(64);
        layout->SetImageHeight(64);
        layout->SetItemHeight(80);
        layout->SetSurfaceSize(300, 500);
    }
    void Add(int count)
    {
        for (int i = 0; i < count; ++i)
            playlist.Append({ "row " + std::to_string(i), "/v/" + std::to_string(i), {}, "" });
    }
    Playlist playlist{ [] { return 0.5; } };
    FancyListItems& items = playlist.List();
    CountingScreen screen;
    std::optional<FancyListLayout> layout{ std::in_place, items, screen };
};

TEST_F(FancyListLayoutTest, RowsRangeAndRectanglesFollowTheScrollValue)
{
    EXPECT_LT(layout->VisibleRows().last, layout->VisibleRows().first);
    EXPECT_EQ(layout->RowAt(0), kNone);
    EXPECT_EQ(layout->ScrollMax(), 0);
    Add(20);
    EXPECT_EQ(layout->ScrollMax(), 20 * 80 - 500);
    EXPECT_EQ(layout->VisibleRows(), (ListRows{ 0, 7 }));
    layout->SetScrollValue(100);
    EXPECT_EQ(layout->VisibleRows(), (ListRows{ 1, 8 }));
    EXPECT_EQ(layout->RowRect(1), (ListRect{ 0, -20, 300, 60 }));
    EXPECT_EQ(layout->ImageRect(1), (ListRect{ 8, -12, 72, 52 }));
    EXPECT_EQ(layout->TextRect(1), (ListRect{ 80, -12, 292, 60 }));
    layout->SetThumbnails(false);
    EXPECT_EQ(layout->TextRect(1).left, 8);
    EXPECT_EQ((std::vector{ layout->RowAt(-101), layout->RowAt(59), layout->RowAt(60) }), (std::vector{ kNone, 1, 2 }));
    layout->SetScrollValue(5000);
    EXPECT_EQ(layout->VisibleRows().last, 19);
    EXPECT_EQ(layout->RowAt(500), kNone);
    layout->SetItemHeight(100);
    EXPECT_EQ(layout->ScrollMax(), 20 * 100 - 500);
    layout->SetItemHeight(0);
    EXPECT_EQ(layout->RowAt(0), 0) << "rows without height are harmless";
}

TEST_F(FancyListLayoutTest, TheThumbOfTheScrollBarWalksItsWholeWayAndHidesAtTheBottomOfWholeRows)
{
    Add(10);
    EXPECT_EQ(layout->ScrollThumb(8).Height(), 310);
    Add(490);
    EXPECT_EQ(layout->ScrollBar(8), (ListRect{ 288, 2, 296, 498 }));
    EXPECT_EQ(layout->ScrollThumb(8), (ListRect{ 288, 2, 296, 30 }));
    layout->SetScrollValue(layout->ScrollMax());
    EXPECT_EQ(layout->ScrollThumb(8).bottom, 498);
    EXPECT_EQ(layout->ScrollValueForThumb(layout->ScrollThumb(8).top), layout->ScrollMax());
    EXPECT_EQ(layout->ScrollValueForThumb(-100), 0);
    layout->SetSurfaceSize(300, 480);
    EXPECT_TRUE(layout->ScrollBarVisible());
    layout->SetScrollValue(layout->ScrollMax());
    EXPECT_FALSE(layout->ScrollBarVisible());
    playlist.RemoveAll();
    Add(7);
    EXPECT_TRUE(layout->ScrollBarVisible());
    items.RemoveItem(6);
    EXPECT_FALSE(layout->ScrollBarVisible());
}

TEST_F(FancyListLayoutTest, TheWheelMovesByHalvesRoundedToEvenAndStopsAtTheEnds)
{
    Add(20);
    std::vector<int> values;
    for (const int delta : { -120, -8, 1'000'000, -1'000'000 }) { // 7.5 and then 8.5 pixels
        layout->Scroll(delta);
        values.push_back(layout->ScrollValue());
    }
    EXPECT_EQ(values, (std::vector{ 8, 8, 0, 1100 }));
    items.RemoveItem(3);
    EXPECT_EQ(layout->ScrollValue(), 1020) << "a shrunken range takes the view along";
    layout->SetSurfaceSize(300, 600);
    EXPECT_EQ(layout->ScrollValue(), 920);
    items.Clear();
    Add(20);
    EXPECT_EQ(layout->ScrollValue(), 0);
}

TEST_F(FancyListLayoutTest, WhatPlaysAndWhatTheKeysReachIsBroughtIntoSightByTheShortestWay)
{
    Add(20);
    const auto valueAfterPlaying = [&](int row) {
        items.SetPlayingItem(row);
        return layout->ScrollValue();
    };
    EXPECT_EQ(valueAfterPlaying(5), 0);
    EXPECT_EQ(valueAfterPlaying(6), 7 * 80 - 500);
    EXPECT_EQ(valueAfterPlaying(1), 60);
    EXPECT_EQ(valueAfterPlaying(20), 60);
    EXPECT_EQ(items.PlayingItem(), kNone);
    layout->SetScrollValue(5);
    EXPECT_EQ(valueAfterPlaying(0), 0);
    EXPECT_EQ(valueAfterPlaying(2), 0);
    layout->SetScrollValue(500);
    items.SetSelectedItem(1);
    playlist.RemoveSelected();
    items.Press(0);
    EXPECT_EQ(layout->ScrollValue(), 500) << "other changes leave the view";
    playlist.MoveSelection(SelectionMove::Up, kPlayContinuous);
    EXPECT_EQ(layout->ScrollValue(), 0);
    playlist.MoveSelection(SelectionMove::ToLast, kPlayContinuous);
    EXPECT_EQ(layout->ScrollValue(), layout->ScrollMax());
    layout->SetSurfaceSize(300, 40);
    EXPECT_EQ(valueAfterPlaying(3), 240) << "a row higher than the surface shows its top";
}

TEST_F(FancyListLayoutTest, SelectionAndMarkStayWithTheirRowsAndInsideTheList)
{
    const auto marks = [&] { return std::pair(items.SelectedItem(), items.PlayingItem()); };
    Add(4);
    items.SetPlayingItem(2);
    for (const int row : { 1, 4, -1 })
        items.SetSelectedItem(row);
    EXPECT_EQ(items.SelectedText(), "row 1");
    items.Press(4);
    EXPECT_EQ(marks(), std::pair(kNone, 2));
    items.RemoveItem(1);
    EXPECT_EQ(marks(), std::pair(1, 1));
    for (const int row : { 3, -1, 2 })
        items.RemoveItem(row);
    EXPECT_EQ(marks(), std::pair(1, 1));
    items.RemoveItem(1);
    EXPECT_EQ(marks(), std::pair(1, kNone)) << "one past the end";
    EXPECT_EQ(items.SelectedText(), "");
    items.SetPlayingItem(0);
    items.Clear();
    EXPECT_EQ(marks(), std::pair(kNone, kNone));
}

TEST_F(FancyListLayoutTest, ChangesTellTheScreenUnlessItIsNotToRefresh)
{
    for (const bool refresh : { true, false }) {
        items.SetRefresh(refresh);
        screen = {};
        Add(20);
        items.SetSelectedItem(3);
        items.SetSelectedItem(99);
        items.RemoveItem(19);
        EXPECT_EQ(screen.changes, 22);
        EXPECT_EQ(screen.repaints, refresh ? 22 : 0);
        layout->Scroll(-16);
        EXPECT_EQ(screen.repaints, refresh ? 23 : 1);
        items.Clear();
    }
    layout.reset();
    items.Clear();
    EXPECT_EQ(screen.changes, 23);
}

TEST(FitThumbTest, PicturesKeepTheirProportionsInTheMiddleOfTheBox)
{
    const auto fit = [](int width, int height) { return FancyListLayout::FitThumb(width, height, { 8, 8, 72, 72 }); };
    EXPECT_EQ(fit(640, 480), (ListRect{ 8, 16, 72, 64 }));
    EXPECT_EQ(fit(480, 640), (ListRect{ 16, 8, 64, 72 }));
    EXPECT_EQ(fit(16, 16), (ListRect{ 8, 8, 72, 72 }));
    EXPECT_EQ(fit(128, 73), (ListRect{ 8, 22, 72, 58 })); // 36.5 px are drawn 36 high; the rest of 28 halves evenly
    EXPECT_EQ(fit(63, 64), (ListRect{ 8, 8, 71, 72 }));   // half a pixel at each side rounds to none
    EXPECT_EQ(fit(0, 128), (ListRect{ 40, 8, 40, 136 })) << "no size, no scale";
    EXPECT_EQ(fit(1, 5000), (ListRect{ 40, 8, 40, 72 }));
    EXPECT_EQ(FancyListLayout::FitThumb(10, 10, { 8, 8, 8, 8 }).Width(), 0);
}

} // namespace
} // namespace zentaro
