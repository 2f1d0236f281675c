#include "playlist/FancyListState.h"

#include <gtest/gtest.h>

namespace zentaro {
namespace {

struct CountingObserver : FancyListObserver {
    void RepaintRequested() override { ++repaints; }
    int repaints = 0;
};

class FancyListStateTest : public testing::Test {
protected:
    // Rows as the main window sets them, on a surface of six and a bit.
    FancyListStateTest()
    {
        list.SetImageWidth(64);
        list.SetImageHeight(64);
        list.SetItemHeight(80);
        list.SetSurfaceSize(300, 500);
        list.SetObserver(&observer);
    }
    void Add(int count)
    {
        for (int i = 0; i < count; ++i)
            list.AddItem("row " + std::to_string(i), {});
    }
    int RepaintsOf(const std::function<void()>& change)
    {
        observer.repaints = 0;
        change();
        return observer.repaints;
    }
    FancyListState list;
    CountingObserver observer;
};

TEST_F(FancyListStateTest, AnEmptyListHasNoRowsNoRangeAndNoScrollBar)
{
    EXPECT_LT(list.VisibleRows().last, list.VisibleRows().first);
    EXPECT_EQ(list.ScrollMax(), 0);
    EXPECT_FALSE(list.ScrollBarVisible());
    EXPECT_EQ(list.RowAt(0), FancyListState::kNone);
    EXPECT_EQ(list.SelectedText(), "");
}

TEST_F(FancyListStateTest, RowsRangeAndRectanglesFollowTheScrollValue)
{
    Add(20);
    EXPECT_EQ(list.ScrollMax(), 20 * 80 - 500);
    EXPECT_EQ(list.VisibleRows(), (ListRows{ 0, 7 }));
    EXPECT_TRUE(list.ScrollBarVisible());
    list.SetScrollValue(100);
    EXPECT_EQ(list.VisibleRows(), (ListRows{ 1, 8 }));
    EXPECT_EQ(list.RowRect(1), (ListRect{ 0, -20, 300, 60 }));
    EXPECT_EQ(list.ImageRect(1), (ListRect{ 8, -12, 72, 52 }));
    EXPECT_EQ(list.TextRect(1), (ListRect{ 80, -12, 292, 60 }));
    list.SetThumbnails(false);
    EXPECT_EQ(list.TextRect(1).left, 8);
    EXPECT_EQ(list.RowAt(59), 1);
    EXPECT_EQ(list.RowAt(60), 2);
    list.SetScrollValue(5000);
    EXPECT_EQ(list.VisibleRows().last, 19);
}

TEST_F(FancyListStateTest, TheScrollBarHidesAtTheBottomOfWholeRows)
{
    list.SetSurfaceSize(300, 480);
    Add(6);
    EXPECT_FALSE(list.ScrollBarVisible());
    Add(1);
    EXPECT_TRUE(list.ScrollBarVisible());
    list.SetScrollValue(list.ScrollMax());
    EXPECT_FALSE(list.ScrollBarVisible());
}

TEST_F(FancyListStateTest, TheWheelMovesByHalvesRoundedToEvenAndStopsAtTheEnds)
{
    Add(20);
    list.Scroll(-120); // 7.5
    EXPECT_EQ(list.ScrollValue(), 8);
    list.Scroll(-8); // 8.5
    EXPECT_EQ(list.ScrollValue(), 8);
    list.Scroll(1'000'000);
    EXPECT_EQ(list.ScrollValue(), 0);
    list.Scroll(-1'000'000);
    EXPECT_EQ(list.ScrollValue(), 1100);
}

TEST_F(FancyListStateTest, AShrunkenRangeTakesTheViewAlong)
{
    Add(20);
    list.SetScrollValue(1100);
    list.RemoveItem(3);
    EXPECT_EQ(list.ScrollValue(), 1020);
    list.Clear();
    EXPECT_EQ(list.ScrollValue(), 0);
}

TEST_F(FancyListStateTest, ASelectionOutsideTheListIsIgnored)
{
    Add(3);
    list.SetSelectedItem(1);
    list.SetSelectedItem(3);
    list.SetSelectedItem(-1);
    EXPECT_EQ(list.SelectedItem(), 1);
    EXPECT_EQ(list.SelectedText(), "row 1");
}

TEST_F(FancyListStateTest, APressSelectsTheRowOrNothingBelowTheLastAlsoWithoutRefresh)
{
    Add(3);
    list.SetRefresh(false);
    EXPECT_EQ(RepaintsOf([&] { list.PressAt(170); }), 0);
    EXPECT_EQ(list.SelectedItem(), 2);
    list.PressAt(240);
    EXPECT_EQ(list.SelectedItem(), -1);
}

TEST_F(FancyListStateTest, RemovingSelectsWhatMovedUpOrPointsPastTheEnd)
{
    Add(3);
    list.SetSelectedItem(0);
    list.SetPlayingItem(2);
    list.RemoveItem(1);
    EXPECT_EQ(list.SelectedItem(), 1);
    EXPECT_EQ(list.PlayingItem(), 1);
    list.RemoveItem(2);
    list.RemoveItem(-1);
    EXPECT_EQ(list.Count(), 2);
    list.RemoveItem(1);
    EXPECT_EQ(list.SelectedItem(), 1);
    EXPECT_EQ(list.SelectedText(), "");
    EXPECT_EQ(list.PlayingItem(), FancyListState::kNone);
}

TEST_F(FancyListStateTest, EachChangeRepaintsByItsOwnRule)
{
    Add(20);
    const auto changes = [&](bool refresh) {
        list.SetRefresh(refresh);
        return std::vector{
            RepaintsOf([&] { list.SetPadding(8); }),
            RepaintsOf([&] { list.SetItemHeight(80); }),
            RepaintsOf([&] { list.AddItem("x", {}); }),
            RepaintsOf([&] { list.RemoveItem(20); }),
            RepaintsOf([&] { list.SetSelectedItem(99); }),
            RepaintsOf([&] { list.SetThumbnails(true); }),
            RepaintsOf([&] { list.SetRefresh(refresh); }),
            RepaintsOf([&] { list.Scroll(-16); }),
            RepaintsOf([&] { list.SetSurfaceSize(300, 500); }),
        };
    };
    EXPECT_EQ(changes(true), (std::vector{ 1, 1, 1, 1, 0, 0, 1, 1, 1 }));
    EXPECT_EQ(changes(false), (std::vector{ 0, 0, 0, 0, 0, 0, 1, 1, 1 }));
}

TEST(FitThumbTest, PicturesKeepTheirProportionsInTheMiddleOfTheBox)
{
    const ListRect box{ 8, 8, 72, 72 };
    EXPECT_EQ(FancyListState::FitThumb(640, 480, box), (ListRect{ 8, 16, 72, 64 }));
    EXPECT_EQ(FancyListState::FitThumb(480, 640, box), (ListRect{ 16, 8, 64, 72 }));
    EXPECT_EQ(FancyListState::FitThumb(16, 16, box), box);
    // 64 x 36.5 px are drawn 36 high; the rest of 28 halves evenly.
    EXPECT_EQ(FancyListState::FitThumb(128, 73, box), (ListRect{ 8, 22, 72, 58 }));
    // 63 px wide leaves half a pixel at each side, which rounds to none.
    EXPECT_EQ(FancyListState::FitThumb(63, 64, box), (ListRect{ 8, 8, 71, 72 }));
}

TEST(FitThumbTest, DegeneratePicturesAndBoxesAreHarmless)
{
    const ListRect box{ 8, 8, 72, 72 };
    EXPECT_EQ(FancyListState::FitThumb(0, 0, box).Width(), 0);
    EXPECT_EQ(FancyListState::FitThumb(1, 5000, box), (ListRect{ 40, 8, 40, 72 }));
    EXPECT_EQ(FancyListState::FitThumb(10, 10, { 8, 8, 8, 8 }).Width(), 0);
    FancyListState list;
    list.SetItemHeight(0);
    list.SetSurfaceSize(10, 10);
    list.AddItem("x", {});
    EXPECT_EQ(list.VisibleRows().last, 0);
}

TEST_F(FancyListStateTest, ARowIsBroughtIntoViewByTheShortestWay)
{
    Add(20);
    const auto valueAfter = [&](int row) {
        list.ScrollToRow(row);
        return list.ScrollValue();
    };
    EXPECT_EQ(valueAfter(5), 0);
    EXPECT_EQ(valueAfter(6), 7 * 80 - 500);
    EXPECT_EQ(valueAfter(1), 60);
    EXPECT_EQ(valueAfter(0), 0);
    EXPECT_EQ(valueAfter(20), 0);
    list.SetSurfaceSize(300, 40);
    EXPECT_EQ(valueAfter(3), 240);
}

TEST_F(FancyListStateTest, TheThumbOfTheScrollBarWalksItsWholeWay)
{
    Add(500);
    EXPECT_EQ(list.ScrollBar(8), (ListRect{ 288, 2, 296, 498 }));
    EXPECT_EQ(list.ScrollThumb(8).top, 2);
    list.SetScrollValue(list.ScrollMax());
    EXPECT_EQ(list.ScrollThumb(8).bottom, 498);
    EXPECT_EQ(list.ScrollValueForThumb(list.ScrollThumb(8).top), list.ScrollMax());
    EXPECT_EQ(list.ScrollValueForThumb(-100), 0);
}

} // namespace
} // namespace zentaro
