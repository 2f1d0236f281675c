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
            items.AddItem("row " + std::to_string(i), {});
    }
    Playlist playlist{ [] { return 0.5; } };
    FancyListItems& items = playlist.List();
    CountingScreen screen;
    std::optional<FancyListLayout> layout{ std::in_place, items, screen };
};

TEST_F(FancyListLayoutTest, AnEmptyListHasNoRowsNoRangeAndNoScrollBar)
{
    EXPECT_LT(layout->VisibleRows().last, layout->VisibleRows().first);
    EXPECT_EQ(layout->ScrollMax(), 0);
    EXPECT_FALSE(layout->ScrollBarVisible());
    EXPECT_EQ(layout->RowAt(0), kNone);
}

TEST_F(FancyListLayoutTest, RowsRangeAndRectanglesFollowTheScrollValue)
{
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
    EXPECT_EQ(layout->RowAt(59), 1);
    EXPECT_EQ(layout->RowAt(60), 2);
    EXPECT_EQ(layout->RowAt(-101), kNone);
    layout->SetScrollValue(5000);
    EXPECT_EQ(layout->VisibleRows().last, 19);
    EXPECT_EQ(layout->RowAt(500), kNone);
    layout->SetItemHeight(100);
    EXPECT_EQ(layout->ScrollMax(), 20 * 100 - 500);
}

TEST_F(FancyListLayoutTest, TheScrollBarHidesAtTheBottomOfWholeRows)
{
    layout->SetSurfaceSize(300, 480);
    Add(6);
    EXPECT_FALSE(layout->ScrollBarVisible());
    Add(1);
    EXPECT_TRUE(layout->ScrollBarVisible());
    layout->SetScrollValue(layout->ScrollMax());
    EXPECT_FALSE(layout->ScrollBarVisible());
}

TEST_F(FancyListLayoutTest, TheThumbOfTheScrollBarWalksItsWholeWay)
{
    Add(500);
    EXPECT_EQ(layout->ScrollBar(8), (ListRect{ 288, 2, 296, 498 }));
    EXPECT_EQ(layout->ScrollThumb(8), (ListRect{ 288, 2, 296, 30 }));
    layout->SetScrollValue(layout->ScrollMax());
    EXPECT_EQ(layout->ScrollThumb(8).bottom, 498);
    EXPECT_EQ(layout->ScrollValueForThumb(layout->ScrollThumb(8).top), layout->ScrollMax());
    EXPECT_EQ(layout->ScrollValueForThumb(-100), 0);
    items.Clear();
    Add(10);
    EXPECT_EQ(layout->ScrollThumb(8).Height(), 310);
}

TEST_F(FancyListLayoutTest, TheWheelMovesByHalvesRoundedToEvenAndStopsAtTheEnds)
{
    Add(20);
    layout->Scroll(-120); // 7.5
    EXPECT_EQ(layout->ScrollValue(), 8);
    layout->Scroll(-8); // 8.5
    EXPECT_EQ(layout->ScrollValue(), 8);
    layout->Scroll(1'000'000);
    EXPECT_EQ(layout->ScrollValue(), 0);
    layout->Scroll(-1'000'000);
    EXPECT_EQ(layout->ScrollValue(), 1100);
}

TEST_F(FancyListLayoutTest, AShrunkenRangeTakesTheViewAlong)
{
    Add(20);
    layout->SetScrollValue(1100);
    items.RemoveItem(3);
    EXPECT_EQ(layout->ScrollValue(), 1020);
    layout->SetSurfaceSize(300, 600);
    EXPECT_EQ(layout->ScrollValue(), 920);
    items.Clear();
    Add(20);
    EXPECT_EQ(layout->ScrollValue(), 0);
}

TEST_F(FancyListLayoutTest, ARowIsBroughtIntoSightByTheShortestWay)
{
    Add(20);
    const auto valueAfterPlaying = [&](int row) {
        items.SetPlayingItem(row);
        return layout->ScrollValue();
    };
    EXPECT_EQ(valueAfterPlaying(5), 0);
    EXPECT_EQ(valueAfterPlaying(6), 7 * 80 - 500);
    EXPECT_EQ(valueAfterPlaying(1), 60);
    EXPECT_EQ(valueAfterPlaying(0), 0);
    EXPECT_EQ(valueAfterPlaying(20), 0);
    layout->SetSurfaceSize(300, 40);
    EXPECT_EQ(valueAfterPlaying(3), 240);
}

TEST_F(FancyListLayoutTest, KeysBringTheSelectionIntoSightOtherChangesLeaveTheView)
{
    for (int i = 0; i < 20; ++i)
        playlist.Append({ "a", "/v/" + std::to_string(i), {}, "" });
    items.SetPlayingItem(2);
    layout->SetScrollValue(500);
    items.SetSelectedItem(1);
    playlist.RemoveSelected();
    items.SetPlayingItem(kNone);
    items.Press(0);
    EXPECT_EQ(layout->ScrollValue(), 500);
    playlist.MoveSelection(SelectionMove::Up, kPlayContinuous);
    EXPECT_EQ(layout->ScrollValue(), 0);
    playlist.MoveSelection(SelectionMove::ToLast, kPlayContinuous);
    EXPECT_EQ(layout->ScrollValue(), layout->ScrollMax());
}

TEST_F(FancyListLayoutTest, ASelectionOutsideTheListIsIgnoredAndAPressBesideTheRowsClearsIt)
{
    EXPECT_EQ(items.SelectedText(), "");
    Add(3);
    items.SetSelectedItem(1);
    items.SetSelectedItem(3);
    items.SetSelectedItem(-1);
    EXPECT_EQ(items.SelectedItem(), 1);
    EXPECT_EQ(items.SelectedText(), "row 1");
    items.Press(layout->RowAt(240));
    EXPECT_EQ(items.SelectedItem(), kNone);
    items.Press(3);
    EXPECT_EQ(items.SelectedItem(), kNone);
}

TEST_F(FancyListLayoutTest, RemovingSelectsWhatMovedUpOrPointsPastTheEnd)
{
    Add(3);
    items.SetSelectedItem(0);
    items.SetPlayingItem(2);
    items.RemoveItem(1);
    EXPECT_EQ(items.SelectedItem(), 1);
    EXPECT_EQ(items.PlayingItem(), 1);
    items.RemoveItem(2);
    items.RemoveItem(-1);
    EXPECT_EQ(items.Count(), 2);
    items.RemoveItem(1);
    EXPECT_EQ(items.SelectedItem(), 1);
    EXPECT_EQ(items.SelectedText(), "");
    EXPECT_EQ(items.PlayingItem(), kNone);
    items.SetPlayingItem(0);
    items.Clear();
    EXPECT_EQ(items.SelectedItem(), kNone);
    EXPECT_EQ(items.PlayingItem(), kNone);
}

TEST_F(FancyListLayoutTest, EachChangeTellsTheScreenByItsOwnRule)
{
    Add(20);
    // Each: repaints with and without Refresh, and news of the list in either case.
    struct {
        std::function<void()> change;
        int repaints, silentRepaints, news;
    } const rules[] = {
        { [&] { layout->SetPadding(8); }, 1, 0, 0 },
        { [&] { layout->SetImageWidth(64); }, 1, 0, 0 },
        { [&] { layout->SetImageHeight(64); }, 1, 0, 0 },
        { [&] { layout->SetItemHeight(80); }, 1, 0, 0 },
        { [&] { layout->SetNoThumbBlack(false); }, 1, 0, 0 },
        { [&] { layout->SetThumbnails(true); }, 0, 0, 0 },
        { [&] { layout->Scroll(-16); }, 1, 1, 0 },
        { [&] { layout->SetSurfaceSize(300, 500); }, 1, 1, 0 },
        { [&] { items.SetRefresh(items.Refresh()); }, 1, 1, 0 },
        { [&] { items.AddItem("x", {}); }, 1, 0, 1 },
        { [&] { items.RemoveItem(20); }, 1, 0, 1 },
        { [&] { items.SetSelectedItem(3); }, 1, 0, 1 },
        { [&] { items.SetSelectedItem(99); }, 0, 0, 0 },
        { [&] { items.Press(kNone); }, 1, 0, 1 },
        { [&] { items.SetPlayingItem(4); }, 1, 0, 0 },
    };
    for (const bool refresh : { true, false }) {
        items.SetRefresh(refresh);
        for (const auto& rule : rules) {
            SCOPED_TRACE(testing::Message() << "rule " << &rule - rules << ", refresh " << refresh);
            screen.repaints = screen.changes = 0;
            rule.change();
            EXPECT_EQ(screen.repaints, refresh ? rule.repaints : rule.silentRepaints);
            EXPECT_EQ(screen.changes, rule.news);
        }
    }
    layout.reset();
    screen.changes = 0;
    items.Clear();
    EXPECT_EQ(screen.changes, 0);
}

TEST(FitThumbTest, PicturesKeepTheirProportionsInTheMiddleOfTheBox)
{
    const ListRect box{ 8, 8, 72, 72 };
    EXPECT_EQ(FancyListLayout::FitThumb(640, 480, box), (ListRect{ 8, 16, 72, 64 }));
    EXPECT_EQ(FancyListLayout::FitThumb(480, 640, box), (ListRect{ 16, 8, 64, 72 }));
    EXPECT_EQ(FancyListLayout::FitThumb(16, 16, box), box);
    // 64 x 36.5 px are drawn 36 high; the rest of 28 halves evenly.
    EXPECT_EQ(FancyListLayout::FitThumb(128, 73, box), (ListRect{ 8, 22, 72, 58 }));
    // 63 px wide leaves half a pixel at each side, which rounds to none.
    EXPECT_EQ(FancyListLayout::FitThumb(63, 64, box), (ListRect{ 8, 8, 71, 72 }));
    EXPECT_EQ(FancyListLayout::FitThumb(0, 0, box).Width(), 0);
    EXPECT_EQ(FancyListLayout::FitThumb(1, 5000, box), (ListRect{ 40, 8, 40, 72 }));
    EXPECT_EQ(FancyListLayout::FitThumb(10, 10, { 8, 8, 8, 8 }).Width(), 0);
}

TEST_F(FancyListLayoutTest, RowsWithoutHeightAreHarmless)
{
    layout->SetItemHeight(0);
    Add(1);
    EXPECT_EQ(layout->VisibleRows().last, 0);
    EXPECT_EQ(layout->RowAt(0), 0);
}

} // namespace
} // namespace zentaro
