#include "tests/app/PlayerFixture.h"

namespace zentaro {
namespace {

class ListEditorTest : public PlayerTest {
protected:
    std::string Rows()
    {
        std::string rows;
        for (int i = 0; i < world.player->Entries().Count(); ++i)
            rows += world.player->Entries().PathAt(i).substr(1, 1);
        return rows;
    }
    FancyListItems& List() { return world.player->Entries().List(); }
};

TEST_F(ListEditorTest, what_was_removed_while_it_plays_comes_back_as_playing)
{
    StartWithEntries(4, kPlayContinuous, kNoRepeat);
    List().SetSelectedItem(0);
    Run("Remove");
    EXPECT_EQ(Rows(), "bcd");
    EXPECT_EQ(world.window.offers, std::vector<std::string>{ "Removed one entry: UndoListEdit" });
    Run("UndoListEdit");
    EXPECT_EQ(Rows(), "abcd");
    EXPECT_EQ(List().PlayingItem(), 0);
    List().MarkOnly(1, 2);
    Run("RemoveEntry");
    EXPECT_EQ(Rows(), "ad");
    EXPECT_EQ(List().SelectedItem(), 0) << "the selection stays with what plays";
    Run("RemoveAll");
    EXPECT_FALSE(IsEnabled("Next"));
    EXPECT_EQ(world.window.offers.back(), "Removed 2 entries: UndoListEdit");
    Run("UndoListEdit");
    EXPECT_TRUE(IsEnabled("Next"));
    Run("UndoListEdit");
    EXPECT_EQ(Rows(), "abcd");
    Run("RedoListEdit");
    EXPECT_EQ(Rows(), "ad");
}

TEST_F(ListEditorTest, marked_rows_move_together_and_play_next)
{
    StartWithEntries(5, kPlayContinuous, kNoRepeat);
    List().SetMarked(2, true);
    List().SetMarked(4, true);
    Run("MoveEntryUp");
    EXPECT_EQ(Rows(), "acebd");
    Run("MoveEntryUp");
    Run("MoveEntryUp");
    EXPECT_EQ(Rows(), "ceabd") << "the top is the end";
    Run("MoveEntryDown");
    EXPECT_EQ(Rows(),
        "aceb"
        "d");
    List().ClearMarks();
    List().SetSelectedItem(4);
    Run("PlayNext");
    EXPECT_EQ(Rows(), "adceb");
    EndItem();
    EXPECT_EQ(LastPlayed(), "/d.avi");

    Run("PMShuffle");
    List().MarkOnly(4, 4);
    Run("PlayNext");
    EndItem();
    EXPECT_EQ(LastPlayed(), "/b.avi");
}

TEST_F(ListEditorTest, a_list_is_opened_saved_and_handed_over)
{
    for (const auto* name : { "a.avi", "b 1.avi" })
        std::ofstream(folder / name) << "x";
    const auto list = (folder / "list.m3u").string();
    std::ofstream(list) << "a.avi\nb 1.avi\ngone.avi\n";
    Start(list);
    EXPECT_EQ(world.player->Entries().Count(), 2);
    EXPECT_EQ(LastPlayed(), (folder / "a.avi").string());
    EXPECT_EQ(world.window.notes, std::vector<std::string>{ "1 of 3 entries could not be found" });

    Run("SaveList");
    world.dialogs.chooseListName((folder / "saved").string());
    EXPECT_EQ(platform::ReadTextFile((folder / "saved.m3u8").string(), 1000),
        "#EXTM3U\n#EXTINF:-1,a.avi\na.avi\n#EXTINF:-1,b 1.avi\nb 1.avi\n");

    Run("RemoveAll");
    bool isDone = false;
    world.receive((folder / "saved.m3u8").string(), [&] { isDone = true; });
    world.Settle();
    EXPECT_TRUE(isDone);
    EXPECT_EQ(world.player->Entries().Count(), 2);

    std::ofstream(folder / "empty.pls") << "";
    world.receive((folder / "empty.pls").string(), [] {});
    world.Settle();
    EXPECT_EQ(Starts(), 3U) << "a list without entries is inspected like any file";
}

} // namespace
} // namespace zentaro
