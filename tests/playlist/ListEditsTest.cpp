#include "playlist/ListArranging.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

namespace zentaro {
namespace {

RandomSource Draws(unsigned seed)
{
    return [engine = std::mt19937(seed)]() mutable { return std::uniform_real_distribution()(engine); };
}

std::string Rows(const Playlist& playlist)
{
    std::string rows;
    for (int i = 0; i < playlist.Count(); ++i)
        rows += playlist.PathAt(i) + " ";
    return rows;
}

std::string Order(Playlist& playlist)
{
    std::string order;
    for (int i = 0; i < playlist.Order().Count(); ++i)
        order += std::to_string(playlist.Order().At(i)) + (i == playlist.Order().Position() ? "* " : " ");
    return order;
}

void Fill(Playlist& playlist, const std::vector<std::string>& names, std::int32_t mode = kPlayContinuous)
{
    for (const auto& name : names) {
        playlist.Append({ name, name, {}, {}, 0, {} });
        playlist.BuildOrder(mode);
    }
    playlist.Edits().EndAdding();
}

TEST(ListEdits, ARemovalIsUndoneWithItsOrderUnlessTheListWentOn)
{
    Playlist playlist(Draws(1));
    Fill(playlist, { "a", "b", "c", "d" });
    playlist.List().SetSelectedItem(1);
    playlist.List().SetPlayingItem(2);
    playlist.MovePositionToSelected();
    playlist.RemoveSelected();
    EXPECT_EQ(Rows(playlist) + Order(playlist), "a c d 0 2* 3 ");
    EXPECT_EQ(playlist.List().PlayingItem(), 1);
    ASSERT_TRUE(playlist.Undo(kPlayContinuous));
    EXPECT_EQ(Rows(playlist) + Order(playlist), "a b c d 0 1* 2 3 ");
    EXPECT_EQ(playlist.List().SelectedItem(), 1);
    EXPECT_EQ(playlist.List().PlayingItem(), 2);
    ASSERT_TRUE(playlist.Redo(kPlayContinuous));
    EXPECT_EQ(Rows(playlist) + Order(playlist), "a c d 0 2* 3 ");

    // The item has ended meanwhile, and "d" plays: undoing must not throw it back.
    playlist.List().SetSelectedItem(2);
    playlist.MovePositionToSelected();
    ASSERT_TRUE(playlist.Undo(kPlayContinuous));
    EXPECT_EQ(Rows(playlist) + Order(playlist), "a b c d 0 1 2 3* ");
    EXPECT_TRUE(playlist.IsInPlaylist("b"));
}

TEST(ListEdits, FilesAddedTogetherGoTogether)
{
    Playlist playlist(Draws(1));
    Fill(playlist, { "a", "b" });
    Fill(playlist, { "c" });
    ASSERT_TRUE(playlist.Undo(kPlayContinuous));
    EXPECT_EQ(Rows(playlist), "a b ");
    ASSERT_TRUE(playlist.Undo(kPlayContinuous));
    EXPECT_EQ(Rows(playlist), "");
    EXPECT_FALSE(playlist.Undo(kPlayContinuous));
    EXPECT_FALSE(playlist.IsInPlaylist("a"));
    ASSERT_TRUE(playlist.Redo(kPlayContinuous) && playlist.Redo(kPlayContinuous));
    EXPECT_EQ(Rows(playlist), "a b c ");
    EXPECT_FALSE(playlist.Redo(kPlayContinuous));
}

TEST(ListEdits, SortsByEachRuleAndBack)
{
    Playlist playlist(Draws(1));
    const auto add = [&](const char* name, const char* path, double length, std::int64_t size, std::int64_t date) {
        playlist.Append({ name, path, {}, {}, 0, { length, 0, 0, size, date } });
    };
    add("Part 10", "/b/p10", 30, 2, 300);
    add("part 2", "/a/p2", 30, 3, 200);
    add("Intro", "/b/i", 10, 1, 100);
    const auto sorted = [&](ListSort by) { return SortedRows(playlist, by, '/'); };
    EXPECT_EQ(sorted(ListSort::Name), (std::vector{ 2, 1, 0 }));
    EXPECT_EQ(sorted(ListSort::Length), (std::vector{ 2, 1, 0 }));
    EXPECT_EQ(sorted(ListSort::Size), (std::vector{ 2, 0, 1 }));
    EXPECT_EQ(sorted(ListSort::Folder), (std::vector{ 1, 2, 0 }));
    playlist.List().SetSelectedItem(1);
    playlist.Arrange(ListEdit::Sort, sorted(ListSort::Date), kPlayContinuous);
    EXPECT_EQ(Rows(playlist) + Order(playlist), "/b/i /a/p2 /b/p10 0 1* 2 ");
    EXPECT_EQ(sorted(ListSort::Date), (std::vector{ 2, 1, 0 }));
}

TEST(ListEdits, WhatPlaysNextFollowsInAShuffle)
{
    PlayOrder order(Draws(3));
    order.BuildShuffle(6, 2);
    const int present = order.At(2);
    const int other = order.At(5);
    order.PutNext({ other, present });
    EXPECT_EQ(order.At(order.Position()), present);
    EXPECT_EQ(order.At(order.Position() + 1), other);
    std::set<int> values;
    for (int i = 0; i < order.Count(); ++i)
        values.insert(order.At(i));
    EXPECT_EQ(values, (std::set{ 0, 1, 2, 3, 4, 5 }));
}

/// The list as a plain row of names with plain copies of all that it was.
struct Model {
    std::vector<std::string> rows;
    std::vector<std::vector<std::string>> done, undone;

    void Begin()
    {
        undone.clear();
        done.push_back(rows);
        if (done.size() > ListHistory::kMostSteps)
            done.erase(done.begin());
    }
    static bool Step(std::vector<std::string>& rows, auto& from, auto& to)
    {
        if (from.empty())
            return false;
        to.push_back(std::exchange(rows, from.back()));
        from.pop_back();
        return true;
    }
};

TEST(ListEdits, RandomEditsEndAsAModelSays)
{
    std::mt19937 random(7);
    const auto draw = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(std::max(1, below))); };
    Playlist playlist(Draws(2));
    Model model;
    int names = 0;
    for (int step = 0; step < 10'000; ++step) {
        const std::int32_t mode = draw(3);
        const int count = playlist.Count();
        std::vector<int> some;
        for (int row = 0; row < count; ++row) {
            if (draw(4) == 0)
                some.push_back(row);
        }
        const auto arrange = [&](ListEdit edit, const std::vector<int>& rows) {
            const auto selected = playlist.PathAt(playlist.List().SelectedItem());
            model.Begin();
            std::vector<std::string> arranged;
            for (const int row : rows)
                arranged.push_back(model.rows[static_cast<std::size_t>(row)]);
            model.rows = arranged;
            playlist.Arrange(edit, rows, mode);
            if (std::ranges::find(arranged, selected) != arranged.end()) {
                EXPECT_EQ(playlist.PathAt(playlist.List().SelectedItem()), selected);
            }
        };
        const int choice = draw(20);
        if (choice < 5) {
            model.Begin();
            std::vector<std::string> added;
            for (int i = draw(5); i >= 0; --i)
                added.push_back("n" + std::to_string(random() % 1000) + "-" + std::to_string(++names));
            model.rows.insert(model.rows.end(), added.begin(), added.end());
            Fill(playlist, added, mode);
        } else if (choice < 7) {
            playlist.List().SetSelectedItem(draw(count));
            playlist.OnClick(mode);
        } else if (choice < 9 && playlist.SelectedEntry()) {
            model.Begin();
            model.rows.erase(model.rows.begin() + playlist.List().SelectedItem());
            playlist.RemoveSelected();
        } else if (choice == 9) {
            arrange(ListEdit::Remove, RemainingRows(count, some));
        } else if (choice < 12) {
            arrange(ListEdit::Move, MovedRows(count, some, draw(count + 1)));
        } else if (choice == 12) {
            arrange(ListEdit::Sort, SortedRows(playlist, ListSort::Name, '/'));
        } else if (choice == 13 && draw(10) == 0 && count > 0) {
            model.Begin();
            model.rows.clear();
            playlist.RemoveAll();
        } else if (choice < 18) {
            EXPECT_EQ(playlist.Undo(mode), Model::Step(model.rows, model.done, model.undone));
        } else {
            EXPECT_EQ(playlist.Redo(mode), Model::Step(model.rows, model.undone, model.done));
        }
        std::string expected;
        for (const auto& row : model.rows)
            expected += row + " ";
        ASSERT_EQ(Rows(playlist), expected) << step;
        ASSERT_EQ(playlist.Order().Count(), playlist.Count()) << step;
        std::set<int> values;
        for (int i = 0; i < playlist.Count(); ++i)
            values.insert(playlist.Order().At(i));
        ASSERT_EQ(static_cast<int>(values.size()), playlist.Count()) << step;
        ASSERT_LE(playlist.List().SelectedItem(), playlist.Count());
        for (const auto& row : model.rows)
            ASSERT_TRUE(playlist.IsInPlaylist(row));
    }
}

} // namespace
} // namespace zentaro
