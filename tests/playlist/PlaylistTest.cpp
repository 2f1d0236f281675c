#include "playlist/Playlist.h"

#include <algorithm>
#include <array>
#include <random>
#include <set>

#include <gtest/gtest.h>

namespace zentaro {
namespace {

class PlaylistTest : public testing::Test {
protected:
    void Add(int count, std::int32_t mode = kPlayContinuous)
    {
        for (int i = 0; i < count; ++i) {
            const auto name = "clip" + std::to_string(playlist.Count()) + ".avi";
            playlist.Append({ name, "/v/" + name, {}, "" });
            playlist.BuildOrder(mode);
        }
    }
    void RemoveAt(int index)
    {
        playlist.List().SetSelectedItem(index);
        playlist.RemoveSelected();
    }
    std::vector<int> Order()
    {
        std::vector<int> values;
        for (int p = 0; p < playlist.Order().Count(); ++p)
            values.push_back(playlist.Order().At(p));
        return values;
    }
    int Selected() const { return playlist.List().SelectedItem(); }
    int Position() const { return playlist.Order().Position(); }

    std::mt19937 engine{ 1 };
    Playlist playlist{ [this] { return std::uniform_real_distribution<double>()(engine); } };
};

TEST_F(PlaylistTest, AnEntryIsItsRowAndItsFileAndEachChangeHasARevision)
{
    const Picture picture(1, 1, { 7 });
    std::set revisions{ playlist.Revision() };
    playlist.Append({ "a.avi", "/w/a.avi", {}, "" });
    revisions.insert(playlist.Revision());
    playlist.Append({ "b.avi", "/w/b.avi", picture, "report" }, "0:10");
    const auto entry = playlist.EntryAt(1).value();
    EXPECT_EQ(entry.Title + "|" + entry.FullPath + "|" + entry.MediaInfo, "b.avi|/w/b.avi|report");
    EXPECT_EQ(entry.Thumbnail, picture);
    EXPECT_EQ(playlist.List().Item(1).Detail, "0:10");
    EXPECT_FALSE(playlist.EntryAt(2) || playlist.EntryAt(-1) || playlist.SelectedEntry() || playlist.IndexOf(99));
    revisions.insert(playlist.Revision());
    RemoveAt(0);
    EXPECT_EQ(playlist.IndexOf(entry.Id), 0);
    EXPECT_EQ(playlist.SelectedEntry()->FullPath, "/w/b.avi");
    revisions.insert(playlist.Revision());
    playlist.RemoveAll();
    revisions.insert(playlist.Revision());
    EXPECT_EQ(revisions.size(), 5U);
    Add(1);
    EXPECT_NE(playlist.EntryAt(0)->Id, entry.Id);
}

TEST_F(PlaylistTest, RemovingKeepsTheOldNumbersUntilTheNextAddRenumbers)
{
    Add(3);
    playlist.Order().SetPosition(2);
    RemoveAt(0);
    EXPECT_EQ(Order(), (std::vector{ 1, 2 }));
    EXPECT_EQ(Position(), 1) << "the position keeps its number, but does not pass the end";
    EXPECT_EQ(playlist.PathAt(0), "/v/clip1.avi");
    EXPECT_FALSE(playlist.IsInPlaylist("/v/clip0.avi") || playlist.IsInPlaylist("/v/CLIP1.avi"));
    playlist.Order().SetPosition(2);
    EXPECT_EQ(Position(), PlayOrder::kNone);
    Add(1);
    EXPECT_EQ(Order(), (std::vector{ 0, 1, 2 }));
    RemoveAt(2);
    EXPECT_EQ(Order(), (std::vector{ 0, 1 }));
    EXPECT_TRUE(playlist.IsInPlaylist("/v/clip1.avi"));
    playlist.BuildShuffleOrder();
    playlist.RemoveAll();
    EXPECT_FALSE(playlist.IsInPlaylist("/v/clip1.avi") || playlist.EntryAt(0) || playlist.StepNext());
    EXPECT_EQ(playlist.List().Count(), 0);
}

TEST_F(PlaylistTest, KeysMoveTheSelectionUpToTheEndsOfTheList)
{
    using enum SelectionMove;
    const auto after = [&](const std::vector<SelectionMove>& moves) {
        std::string rows;
        for (const auto move : moves) {
            const bool moved = playlist.MoveSelection(move, kPlayContinuous);
            rows += std::to_string(Selected()) + (moved ? "! " : " ");
        }
        return rows;
    };
    EXPECT_EQ(after({ Up, Down, ToFirst, ToLast }), "-1 -1 -1 -1 ");
    Add(4);
    EXPECT_EQ(after({ Down, Up, Down, ToFirst, ToLast, Down }), "0! 0 1! 0! 3! 3 ");
    EXPECT_EQ(Position(), 3);
    RemoveAt(3);
    playlist.RemoveSelected();
    EXPECT_EQ(playlist.Count(), 3) << "the selection was behind the end";
    EXPECT_FALSE(playlist.SelectedEntry() || playlist.DoubleClickedIndex());
    EXPECT_EQ(after({ Up }), "2! ");
    EXPECT_EQ(playlist.DoubleClickedIndex(), 2);
}

TEST_F(PlaylistTest, KeysAndClicksMoveThePositionUnlessShuffled)
{
    Add(3, kPlayShuffle);
    playlist.List().SetSelectedItem(1);
    playlist.BuildOrder(kPlayShuffle);
    playlist.List().SetSelectedItem(2);
    Order();
    EXPECT_EQ(Position(), 1) << "the selection of the order's building counts, not that of its later drawing";
    playlist.OnClick(kPlayShuffle);
    playlist.MoveSelection(SelectionMove::ToFirst, kPlayShuffle);
    EXPECT_EQ(Position(), 1);
    playlist.OnClick(kPlayNormal);
    EXPECT_EQ(Position(), 0);
}

TEST_F(PlaylistTest, NextAndPreviousWrapAndPlayPositionsNotValues)
{
    Add(3, kPlayShuffle);
    playlist.Order().SetPosition(1);
    const std::vector steps{ playlist.StepNext(), playlist.StepNext(), playlist.StepPrevious(),
        playlist.StepPrevious() };
    EXPECT_EQ(steps, (std::vector<std::optional<int>>{ 2, 0, 2, 1 }));
    EXPECT_EQ(Selected(), 1);
    playlist.Order().SetPosition(-1);
    EXPECT_EQ(playlist.StepPrevious(), 2);
}

TEST_F(PlaylistTest, AShuffleIsAPermutationAndDrawsItsEndSlotsHalfAsOften)
{
    constexpr int kRounds = 4000;
    std::array<int, 5> slotOfFirst{};
    Add(5, kPlayShuffle);
    for (int round = 0; round < kRounds; ++round) {
        playlist.BuildShuffleOrder();
        auto order = Order();
        ++slotOfFirst.at(static_cast<std::size_t>(std::find(order.begin(), order.end(), 0) - order.begin()));
        std::sort(order.begin(), order.end());
        ASSERT_EQ(order, (std::vector{ 0, 1, 2, 3, 4 }));
    }
    // Entry 0 is drawn into an empty table: an eighth each for the ends, a quarter each for the others.
    for (const std::size_t slot : { 0, 2, 4 })
        EXPECT_NEAR(slotOfFirst[slot], slot == 2 ? kRounds / 4 : kRounds / 8, kRounds / 32) << slot;

    playlist.BuildShuffleOrder();
    playlist.BuildSequentialOrder();
    EXPECT_EQ(Order(), (std::vector{ 0, 1, 2, 3, 4 })) << "in place of a shuffle that nobody had read yet";
    playlist.BuildShuffleOrder();
    RemoveAt(2);
    const auto order = Order();
    EXPECT_EQ(std::set(order.begin(), order.end()).size(), 4U) << "one position of it is gone";
    playlist.Order().BuildSequential(1, 0);
    EXPECT_EQ(Order(), (std::vector{ 0 }));
}

/// What follows when an entry has ended, in nine situations: no entry | one: at it, nowhere | three: first, middle,
/// last, nowhere | two of three left, the order still with its old numbers: first, last. Each is "again", "finish", or
/// the new position and the entry that is played, "1>2". Shuffled, the three stand in the order 1, 2, 0.
std::string Ends(std::int32_t playMode, std::int32_t repeatMode)
{
    constexpr int kSituations[][3] = { { 0, -1 }, { 1, 0 }, { 1, -1 }, { 3, 0 }, { 3, 1 }, { 3, 2 }, { 3, -1 },
        { 3, 0, true }, { 3, 1, true } };
    std::string text;
    for (const auto& [count, position, isStale] : kSituations) {
        Playlist playlist([draws = std::array{ 0.9, 0.1, 0.5 }, next = 0U]() mutable { return draws[next++ % 3]; });
        auto& list = playlist.List();
        for (int entry = 0; entry < count; ++entry)
            playlist.Append({ "clip", "/v/" + std::to_string(entry), {}, "" });
        playlist.BuildOrder(playMode);
        list.SetSelectedItem(0);
        if (isStale)
            playlist.RemoveSelected();
        playlist.Order().SetPosition(position);
        list.SetRefresh(false);
        const auto end = playlist.OnEndOfItem(playMode, repeatMode);
        const bool plays = end.action == EndOfItem::Action::Play;
        text += plays ? std::to_string(end.position) + ">" + std::to_string(end.index) + " "
            : end.action == EndOfItem::Action::RestartSame ? "again "
                                                           : "finish ";
        EXPECT_EQ(playlist.Order().Position(), plays ? end.position : position) << text;
        // An order left behind by a removal can name no entry; then the selection stays.
        EXPECT_EQ(list.SelectedItem(), plays && playlist.EntryAt(end.index) ? end.index : std::min(0, count - 1))
            << text;
        EXPECT_EQ(list.Refresh(), plays);
    }
    return text;
}

TEST(EndOfItemTest, FollowsModeRepeatAndPosition)
{
    const std::string finish = "finish finish finish finish finish finish finish finish finish ";
    const std::string again = "again again again again again again again again again ";
    EXPECT_EQ(Ends(kPlayNormal, kNoRepeat), finish);
    EXPECT_EQ(Ends(kPlayNormal, kRepeatAll), finish);
    EXPECT_EQ(Ends(kPlayNormal, kRepeatSingle), again);
    EXPECT_EQ(Ends(kPlayShuffle, kRepeatSingle), again);
    EXPECT_EQ(Ends(kPlayContinuous, kNoRepeat), "finish finish 0>0 1>1 2>2 finish 0>0 1>2 finish ");
    EXPECT_EQ(Ends(kPlayContinuous, kRepeatAll), "-1>-1 0>0 0>0 1>1 2>2 0>0 0>0 1>2 0>1 ");
    EXPECT_EQ(Ends(kPlayShuffle, kNoRepeat), "finish finish 0>0 1>2 2>0 finish 0>1 1>0 finish ");
    EXPECT_EQ(Ends(kPlayShuffle, kRepeatAll), "-1>-1 0>0 0>0 1>2 2>0 0>1 0>1 1>0 0>2 ");
}

} // namespace
} // namespace zentaro
