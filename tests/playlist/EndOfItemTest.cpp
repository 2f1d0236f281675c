#include "playlist/Playlist.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>

namespace zentaro {
namespace {

/// A list as it stands when its current entry has ended.
struct Situation {
    int count;
    int position; // in the play order; kNone: nothing was selected when the order was built
    bool isStale; // entry 0 has been removed since, and the order still has the numbers from before
};

constexpr int kNoPosition = PlayOrder::kNone;
constexpr std::array kSituations{
    Situation{ 0, kNoPosition, false },
    Situation{ 1, 0, false },
    Situation{ 1, kNoPosition, false },
    Situation{ 3, 0, false },
    Situation{ 3, 1, false },
    Situation{ 3, 2, false },
    Situation{ 3, kNoPosition, false },
    Situation{ 3, 0, true },
    Situation{ 3, 1, true },
};

/// "again", "finish", or the new position and the entry that is played: "1>2".
std::string Text(const EndOfItem& end)
{
    switch (end.action) {
    case EndOfItem::Action::RestartSame:
        return "again";
    case EndOfItem::Action::StopAndAfterPlay:
        return "finish";
    case EndOfItem::Action::Play:
        break;
    }
    return std::to_string(end.position) + ">" + std::to_string(end.index);
}

/// Draws that shuffle three entries into the order 1, 2, 0.
RandomSource KnownDraws()
{
    return [draws = std::array{ 0.9, 0.1, 0.5 }, next = 0U]() mutable { return draws[next++ % draws.size()]; };
}

Playlist Prepared(const Situation& situation, std::int32_t playMode)
{
    Playlist playlist(KnownDraws());
    for (int entry = 0; entry < situation.count; ++entry)
        playlist.Append({ "clip", "/v/" + std::to_string(entry), {}, "" });
    playlist.BuildOrder(playMode);
    if (situation.isStale) {
        playlist.List().SetSelectedItem(0);
        playlist.RemoveSelected();
    }
    playlist.Order().SetPosition(situation.position);
    return playlist;
}

struct Rule {
    const char* name;
    std::int32_t playMode;
    std::int32_t repeatMode;
    const char* outcomes; // one per situation, in their order
};

class EndOfItemTest : public testing::TestWithParam<Rule> { };

TEST_P(EndOfItemTest, FollowsModeRepeatAndPosition)
{
    std::istringstream outcomes(GetParam().outcomes);
    for (const auto& situation : kSituations) {
        std::string expected;
        outcomes >> expected;
        auto playlist = Prepared(situation, GetParam().playMode);
        const int selectedBefore = playlist.List().SelectedItem();
        const auto end = playlist.OnEndOfItem(GetParam().playMode, GetParam().repeatMode);
        SCOPED_TRACE(testing::Message() << situation.count << " entries, position " << situation.position
                                        << (situation.isStale ? ", stale" : ""));
        EXPECT_EQ(Text(end), expected);
        const bool playsAnEntry = end.action == EndOfItem::Action::Play && playlist.EntryAt(end.index) != nullptr;
        EXPECT_EQ(playlist.List().SelectedItem(), playsAnEntry ? end.index : selectedBefore);
        EXPECT_EQ(
            playlist.Order().Position(), end.action == EndOfItem::Action::Play ? end.position : situation.position);
    }
}

// The columns: no entry | one: at it, nowhere | three: first, middle, last, nowhere | two of three left: first, last
INSTANTIATE_TEST_SUITE_P(Of, EndOfItemTest,
    testing::Values(Rule{ "NormalNoRepeat", 0, 0, "finish  finish finish  finish finish finish finish  finish finish" },
        Rule{ "NormalRepeatAll", 0, 2, "finish  finish finish  finish finish finish finish  finish finish" },
        Rule{ "NormalSingle", 0, 1, "again  again again  again again again again  again again" },
        Rule{ "ContinuousSingle", 1, 1, "again  again again  again again again again  again again" },
        Rule{ "ShuffleSingle", 2, 1, "again  again again  again again again again  again again" },
        Rule{ "ContinuousNoRepeat", 1, 0, "finish  finish 0>0  1>1 2>2 finish 0>0  1>2 finish" },
        Rule{ "ContinuousRepeatAll", 1, 2, "-1>-1  0>0 0>0  1>1 2>2 0>0 0>0  1>2 0>1" },
        Rule{ "ShuffleNoRepeat", 2, 0, "finish  finish 0>0  1>2 2>0 finish 0>1  1>0 finish" },
        Rule{ "ShuffleRepeatAll", 2, 2, "-1>-1  0>0 0>0  1>2 2>0 0>1 0>1  1>0 0>2" }),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zentaro
