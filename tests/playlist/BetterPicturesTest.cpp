#include "playlist/BetterPictures.h"

#include <gtest/gtest.h>

#include <optional>

namespace zentaro {
namespace {

Picture OfSize(int width, int height)
{
    return { width, height, std::vector<std::uint32_t>(static_cast<std::size_t>(width * height)) };
}

struct BetterPicturesTest : testing::Test {
    BetterPicturesTest()
    {
        better.order = [this](const BetterOrder& order) {
            EXPECT_FALSE(asked) << "two at a time";
            asked = order;
        };
        better.isStandIn = [this](const Picture& picture) { return picture == standIn; };
    }
    void Add(const std::string& name, bool isFilm = true, bool isKept = true)
    {
        MediaFacts facts{ .duration = 60 };
        facts.width = facts.height = isFilm ? 480 : 0;
        list.Append({ name, "/" + name, isFilm ? OfSize(90, 72) : standIn, "", 0, facts, isKept });
    }
    void Answer(Picture picture)
    {
        const auto order = std::exchange(asked, std::nullopt);
        ASSERT_TRUE(order);
        better.Found(order->id, std::move(picture));
    }

    const Picture standIn = OfSize(256, 256);
    Playlist list{ [] { return 0.0; } };
    BetterPictures better{ list };
    std::optional<BetterOrder> asked;
};

TEST_F(BetterPicturesTest, WhatIsInSightGetsThemOneByOneAndNobodyElse)
{
    Add("song", false, false);
    Add("a");
    Add("stand-in", true, false);
    Add("b");
    Add("out of sight");
    better.RowsInSight(0, 3);
    ASSERT_TRUE(asked);
    EXPECT_TRUE(asked->path == "/song" && asked->isSong);
    Answer(OfSize(60, 60)); // a cover can be small
    EXPECT_EQ(list.List().Item(0).Pic, standIn);
    EXPECT_TRUE(asked->path == "/a" && !asked->isSong);
    EXPECT_EQ(asked->length, 60'000);
    better.RowsInSight(0, 3);
    Answer(OfSize(320, 180));
    EXPECT_EQ(list.List().Item(1).Pic.Width(), 320);
    EXPECT_EQ(asked->path, "/b");
    Answer({});
    better.RowsInSight(0, 3);
    EXPECT_FALSE(asked) << "neither of the one that has it nor of the one that gives none";
}

TEST_F(BetterPicturesTest, AnEntryMayBeGoneWhenItsPictureComesAndFarOnesGo)
{
    for (int i = 0; i < 200; ++i)
        Add(std::to_string(i));
    better.RowsInSight(0, 0);
    list.List().SetSelectedItem(0);
    list.RemoveSelected();
    Answer(OfSize(320, 180));
    for (int row = 0; row < 199; ++row) {
        better.RowsInSight(row, row);
        if (asked)
            Answer(OfSize(320, 180));
    }
    int large = 0;
    for (int row = 0; row < list.Count(); ++row)
        large += list.List().Item(row).Pic.Width() > 90 ? 1 : 0;
    EXPECT_LE(large, 100);
    EXPECT_GE(large, 50);
    EXPECT_EQ(list.List().Item(198).Pic.Width(), 320) << "it is in sight";
    Add("song", false, false);
    better.RowsInSight(199, 199);
    Answer(OfSize(300, 300));
    for (int row = 200; row < 300; ++row) {
        Add("further " + std::to_string(row));
        better.RowsInSight(row, row);
        Answer(OfSize(320, 180));
    }
    EXPECT_EQ(list.List().Item(199).Pic, standIn) << "it comes from nowhere else";
}

} // namespace
} // namespace zentaro
