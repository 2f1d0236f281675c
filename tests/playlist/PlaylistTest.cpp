#include "playlist/Playlist.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace zentaro {
namespace {

RandomSource Seeded(unsigned seed)
{
    return [engine = std::mt19937(seed)]() mutable { return std::uniform_real_distribution<double>()(engine); };
}

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
    EndOfItem EndAt(int position, std::int32_t mode, std::int32_t repeat)
    {
        playlist.Order().SetPosition(position);
        return playlist.OnEndOfItem(mode, repeat);
    }
    Playlist playlist{ Seeded(1) };
    static constexpr EndOfItem kFinished{ .action = EndOfItem::Action::StopAndAfterPlay };
};

TEST_F(PlaylistTest, RemovingKeepsTheOldNumbersUntilTheNextAddRenumbers)
{
    Add(3);
    RemoveAt(0);
    EXPECT_EQ(Order(), (std::vector{ 1, 2 }));
    EXPECT_EQ(playlist.PathAt(0), "/v/clip1.avi");
    EXPECT_FALSE(playlist.IsInPlaylist("/v/clip0.avi"));
    EXPECT_FALSE(playlist.IsInPlaylist("/v/CLIP1.avi"));
    Add(1);
    EXPECT_EQ(Order(), (std::vector{ 0, 1, 2 }));
    RemoveAt(2);
    EXPECT_EQ(Order(), (std::vector{ 0, 1 }));
}

TEST_F(PlaylistTest, ASelectionPastTheEndRemovesAndPlaysNothing)
{
    Add(2);
    RemoveAt(1);
    ASSERT_EQ(playlist.List().SelectedItem(), 1);
    playlist.RemoveSelected();
    EXPECT_EQ(playlist.Count(), 1);
    EXPECT_EQ(playlist.SelectedEntry(), nullptr);
    EXPECT_FALSE(playlist.DoubleClickedIndex());
}

TEST_F(PlaylistTest, ThePositionKeepsItsNumberButDoesNotPassTheEnd)
{
    Add(3);
    playlist.Order().SetPosition(2);
    RemoveAt(0);
    EXPECT_EQ(playlist.Order().Position(), 1);
    playlist.Order().SetPosition(5);
    EXPECT_EQ(playlist.Order().Position(), PlayOrder::kNone);
    playlist.RemoveAll();
    EXPECT_FALSE(playlist.StepNext());
    EXPECT_FALSE(playlist.StepPrevious());
}

TEST_F(PlaylistTest, TheSelectionOfTheAddBecomesThePositionEvenBeforeTheShuffleIsDrawn)
{
    Add(3, kPlayShuffle);
    playlist.List().SetSelectedItem(1);
    playlist.BuildOrder(kPlayShuffle);
    playlist.List().SetSelectedItem(2);
    Order();
    EXPECT_EQ(playlist.Order().Position(), 1);
    playlist.OnClick(kPlayShuffle);
    EXPECT_EQ(playlist.Order().Position(), 1);
    playlist.OnClick(kPlayContinuous);
    EXPECT_EQ(playlist.Order().Position(), 2);
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
}

TEST_F(PlaylistTest, ARemovalFromAnUnreadShuffleTakesOnePositionOfIt)
{
    Add(4, kPlayShuffle);
    RemoveAt(2);
    const auto order = Order();
    EXPECT_EQ(order.size(), 3u);
    EXPECT_TRUE(std::all_of(order.begin(), order.end(), [](int value) { return value >= 0 && value < 4; }));
}

TEST_F(PlaylistTest, NextAndPreviousWrapAndPlayPositionsNotValues)
{
    Add(3, kPlayShuffle);
    playlist.Order().SetPosition(1);
    EXPECT_EQ(playlist.StepNext(), 2);
    EXPECT_EQ(playlist.StepNext(), 0);
    EXPECT_EQ(playlist.StepPrevious(), 2);
    EXPECT_EQ(playlist.List().SelectedItem(), 2);
    playlist.Order().SetPosition(-1);
    EXPECT_EQ(playlist.StepPrevious(), 2);
}

TEST_F(PlaylistTest, TheEndOfAnEntryFollowsModeAndRepeat)
{
    Add(3);
    const auto play = [](int index) { return EndOfItem{ EndOfItem::Action::Play, index, index }; };
    EXPECT_EQ(EndAt(2, kPlayNormal, kRepeatAll), kFinished);
    EXPECT_EQ(EndAt(0, kPlayContinuous, kNoRepeat), play(1));
    EXPECT_EQ(playlist.List().SelectedItem(), 1);
    EXPECT_EQ(EndAt(2, kPlayContinuous, kNoRepeat), kFinished);
    EXPECT_EQ(EndAt(2, kPlayContinuous, kRepeatAll), play(0));
    EXPECT_EQ(EndAt(1, kPlayNormal, kRepeatSingle), (EndOfItem{ .action = EndOfItem::Action::RestartSame }));
    playlist.BuildShuffleOrder();
    const int third = Order()[2];
    EXPECT_EQ(EndAt(1, kPlayShuffle, kNoRepeat), (EndOfItem{ EndOfItem::Action::Play, 2, third }));
    EXPECT_EQ(playlist.List().SelectedItem(), third);
}

TEST_F(PlaylistTest, AnOrderLeftBehindByRemovalsCanNameNoEntry)
{
    Add(3);
    RemoveAt(0);
    EXPECT_EQ(EndAt(0, kPlayContinuous, kNoRepeat), (EndOfItem{ EndOfItem::Action::Play, 1, 2 }));
    EXPECT_EQ(playlist.List().SelectedItem(), 0);
    EXPECT_EQ(playlist.Order().Position(), 1);
    playlist.RemoveAll();
    EXPECT_EQ(playlist.OnEndOfItem(kPlayContinuous, kRepeatAll), (EndOfItem{ EndOfItem::Action::Play, -1, -1 }));
    EXPECT_EQ(playlist.OnEndOfItem(kPlayContinuous, kNoRepeat), kFinished);
}

} // namespace
} // namespace zentaro
