#include "playlist/Playlist.h"

#include <algorithm>
#include <array>
#include <random>
#include <sstream>

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

    Playlist playlist{ [engine = std::mt19937(1)]() mutable {
        return std::uniform_real_distribution<double>()(engine);
    } };
};

TEST_F(PlaylistTest, AnEntryIsItsRowAndItsFile)
{
    const Picture picture(1, 1, { 7 });
    Add(1);
    playlist.Append({ "b.avi", "/w/b.avi", picture, "report" }, "0:10");
    const auto entry = playlist.EntryAt(1);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->Title + "|" + entry->FullPath + "|" + entry->MediaInfo, "b.avi|/w/b.avi|report");
    EXPECT_EQ(entry->Thumbnail, picture);
    EXPECT_EQ(playlist.List().Item(1).Detail, "0:10");
    EXPECT_FALSE(playlist.EntryAt(2) || playlist.EntryAt(-1) || playlist.SelectedEntry());
    const auto revision = playlist.Revision();
    RemoveAt(0);
    EXPECT_EQ(playlist.IndexOf(entry->Id), 0);
    EXPECT_FALSE(playlist.IndexOf(0));
    EXPECT_NE(playlist.Revision(), revision);
    EXPECT_EQ(playlist.SelectedEntry()->FullPath, "/w/b.avi");
    Add(1);
    EXPECT_NE(playlist.EntryAt(1)->Id, entry->Id);
}

TEST_F(PlaylistTest, RemovingKeepsTheOldNumbersUntilTheNextAddRenumbers)
{
    Add(3);
    RemoveAt(0);
    EXPECT_EQ(Order(), (std::vector{ 1, 2 }));
    EXPECT_EQ(playlist.PathAt(0), "/v/clip1.avi");
    EXPECT_FALSE(playlist.IsInPlaylist("/v/clip0.avi"));
    EXPECT_TRUE(playlist.IsInPlaylist("/v/clip1.avi"));
    EXPECT_FALSE(playlist.IsInPlaylist("/v/CLIP1.avi"));
    Add(1);
    EXPECT_EQ(Order(), (std::vector{ 0, 1, 2 }));
    RemoveAt(2);
    EXPECT_EQ(Order(), (std::vector{ 0, 1 }));
    playlist.RemoveAll();
    EXPECT_FALSE(playlist.IsInPlaylist("/v/clip1.avi") || playlist.EntryAt(0));
    EXPECT_EQ(playlist.List().Count(), 0);
}

TEST_F(PlaylistTest, ASelectionPastTheEndRemovesAndPlaysNothing)
{
    Add(2);
    RemoveAt(1);
    ASSERT_EQ(Selected(), 1);
    playlist.RemoveSelected();
    EXPECT_EQ(playlist.Count(), 1);
    EXPECT_FALSE(playlist.SelectedEntry());
    EXPECT_FALSE(playlist.DoubleClickedIndex());
    playlist.List().SetSelectedItem(0);
    EXPECT_EQ(playlist.DoubleClickedIndex(), 0);
}

TEST_F(PlaylistTest, KeysMoveTheSelectionUpToTheEndsOfTheList)
{
    const auto after = [&](SelectionMove move) {
        const bool moved = playlist.MoveSelection(move, kPlayContinuous);
        return std::to_string(Selected()) + (moved ? " moved" : "");
    };
    for (const auto move : { SelectionMove::Up, SelectionMove::Down, SelectionMove::ToFirst, SelectionMove::ToLast })
        EXPECT_EQ(after(move), "-1");
    Add(4);
    EXPECT_EQ(after(SelectionMove::Down), "0 moved");
    EXPECT_EQ(after(SelectionMove::Up), "0");
    EXPECT_EQ(after(SelectionMove::Down), "1 moved");
    EXPECT_EQ(after(SelectionMove::ToLast), "3 moved");
    EXPECT_EQ(Position(), 3);
    EXPECT_EQ(after(SelectionMove::Down), "3");
    EXPECT_EQ(after(SelectionMove::Up), "2 moved");
    EXPECT_EQ(after(SelectionMove::ToFirst), "0 moved");
    // From behind the end it goes on at the last entry.
    RemoveAt(3);
    EXPECT_EQ(after(SelectionMove::Up), "2 moved");
    RemoveAt(2);
    EXPECT_EQ(after(SelectionMove::Down), "1 moved");
}

TEST_F(PlaylistTest, KeysAndClicksMoveThePositionUnlessShuffled)
{
    Add(3, kPlayShuffle);
    playlist.List().SetSelectedItem(1);
    playlist.BuildOrder(kPlayShuffle);
    // The selection of that moment counts, not that of the later drawing.
    playlist.List().SetSelectedItem(2);
    Order();
    EXPECT_EQ(Position(), 1);
    playlist.OnClick(kPlayShuffle);
    playlist.MoveSelection(SelectionMove::ToFirst, kPlayShuffle);
    EXPECT_EQ(Position(), 1);
    playlist.OnClick(kPlayContinuous);
    EXPECT_EQ(Position(), 0);
}

TEST_F(PlaylistTest, ThePositionKeepsItsNumberButDoesNotPassTheEnd)
{
    Add(3);
    playlist.Order().SetPosition(2);
    RemoveAt(0);
    EXPECT_EQ(Position(), 1);
    playlist.Order().SetPosition(2);
    EXPECT_EQ(Position(), PlayOrder::kNone);
    playlist.RemoveAll();
    EXPECT_FALSE(playlist.StepNext());
    EXPECT_FALSE(playlist.StepPrevious());
}

TEST_F(PlaylistTest, NextAndPreviousWrapAndPlayPositionsNotValues)
{
    Add(3, kPlayShuffle);
    playlist.Order().SetPosition(1);
    EXPECT_EQ(playlist.StepNext(), 2);
    EXPECT_EQ(playlist.StepNext(), 0);
    EXPECT_EQ(playlist.StepPrevious(), 2);
    EXPECT_EQ(playlist.StepPrevious(), 1);
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
    EXPECT_NEAR(slotOfFirst.front(), kRounds / 8, kRounds / 32);
    EXPECT_NEAR(slotOfFirst.back(), kRounds / 8, kRounds / 32);
    EXPECT_NEAR(slotOfFirst[2], kRounds / 4, kRounds / 32);

    // A removal takes one position of a shuffle that nobody has read yet.
    playlist.BuildShuffleOrder();
    RemoveAt(2);
    const auto order = Order();
    EXPECT_EQ(order.size(), 4U);
    EXPECT_TRUE(std::all_of(order.begin(), order.end(), [](int value) { return value >= 0 && value < 5; }));
}

/// "again", "finish", or the new position and the entry that is played: "1>2".
std::string Text(const EndOfItem& end)
{
    if (end.action == EndOfItem::Action::Play)
        return std::to_string(end.position) + ">" + std::to_string(end.index);
    return end.action == EndOfItem::Action::RestartSame ? "again" : "finish";
}

/// A list as it stands when its current entry has ended.
struct Situation {
    int count;
    int position;
    bool isStale = false; // entry 0 has been removed since, and the order still has the numbers from before
};

/// In shuffle mode three entries stand in the order 1, 2, 0.
void Prepare(Playlist& playlist, const Situation& situation, std::int32_t playMode)
{
    for (int entry = 0; entry < situation.count; ++entry)
        playlist.Append({ "clip", "/v/" + std::to_string(entry), {}, "" });
    playlist.BuildOrder(playMode);
    if (situation.isStale) {
        playlist.List().SetSelectedItem(0);
        playlist.RemoveSelected();
    }
    playlist.Order().SetPosition(situation.position);
}

TEST(EndOfItemTest, FollowsModeRepeatAndPosition)
{
    const Situation situations[] = { { 0, -1 }, { 1, 0 }, { 1, -1 }, { 3, 0 }, { 3, 1 }, { 3, 2 }, { 3, -1 },
        { 3, 0, true }, { 3, 1, true } };
    struct {
        std::int32_t playMode, repeatMode;
        const char* outcomes;
    } const rules[] = {
        // no entry | one: at it, nowhere | three: first, middle, last, nowhere | two of three left: first, last
        { 0, 0, "finish finish finish finish finish finish finish finish finish" },
        { 0, 2, "finish finish finish finish finish finish finish finish finish" },
        { 0, 1, "again again again again again again again again again" },
        { 2, 1, "again again again again again again again again again" },
        { 1, 0, "finish finish 0>0 1>1 2>2 finish 0>0 1>2 finish" },
        { 1, 2, "-1>-1 0>0 0>0 1>1 2>2 0>0 0>0 1>2 0>1" },
        { 2, 0, "finish finish 0>0 1>2 2>0 finish 0>1 1>0 finish" },
        { 2, 2, "-1>-1 0>0 0>0 1>2 2>0 0>1 0>1 1>0 0>2" },
    };
    for (const auto& rule : rules) {
        std::istringstream outcomes(rule.outcomes);
        for (const auto& situation : situations) {
            std::string expected;
            outcomes >> expected;
            Playlist playlist([draws = std::array{ 0.9, 0.1, 0.5 }, next = 0U]() mutable { return draws[next++ % 3]; });
            Prepare(playlist, situation, rule.playMode);
            const int selectedBefore = playlist.List().SelectedItem();
            const auto end = playlist.OnEndOfItem(rule.playMode, rule.repeatMode);
            SCOPED_TRACE(testing::Message() << "play " << rule.playMode << ", repeat " << rule.repeatMode << ", "
                                            << situation.count << " entries, position " << situation.position);
            const bool plays = end.action == EndOfItem::Action::Play;
            EXPECT_EQ(Text(end), expected);
            EXPECT_EQ(playlist.Order().Position(), plays ? end.position : situation.position);
            // An order left behind by a removal can name no entry; then the selection stays.
            EXPECT_EQ(
                playlist.List().SelectedItem(), plays && playlist.EntryAt(end.index) ? end.index : selectedBefore);
        }
    }
}

} // namespace
} // namespace zentaro
