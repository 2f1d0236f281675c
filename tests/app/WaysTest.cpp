#include "tests/app/PlayerFixture.h"

namespace zentaro {
namespace {

/// What differs for those who know other players. All else is tested with our own ways.
class WaysTest : public PlayerTest {
protected:
    Player& StartFamiliar(int count, std::int32_t playMode, std::int32_t repeatMode)
    {
        auto& player = StartWithEntries(0, playMode, repeatMode);
        player.SetFamiliarWays(true);
        for (int i = 0; i < count; ++i)
            Add(std::string("/") + static_cast<char>('a' + i) + ".avi", i == 0);
        return player;
    }
    FancyListItems& List() { return world.player->Entries().List(); }
};

TEST_F(WaysTest, neither_a_click_nor_a_removal_changes_what_follows)
{
    auto& player = StartFamiliar(4, kPlayContinuous, kNoRepeat);
    List().SetSelectedItem(2);
    player.Sequence().ListClicked();
    EndItem();
    EXPECT_EQ(LastPlayed(), "/b.avi");
    List().SetSelectedItem(0);
    Run("Remove");
    EndItem();
    EXPECT_EQ(LastPlayed(), "/c.avi");
    Run("Remove"); // what plays
    EndItem();
    EXPECT_EQ(LastPlayed(), "/d.avi");
    player.Sequence().ListRightPressed(0);
    EXPECT_EQ(List().SelectedItem(), 0);
}

TEST_F(WaysTest, the_buttons_do_what_people_expect)
{
    auto& player = StartFamiliar(6, kPlayShuffle, kNoRepeat);
    auto& order = player.Entries().Order();
    int position = 0;
    while (order.At(position) != List().PlayingItem())
        ++position;
    const int next = order.At((position + 1) % 6);
    Run("Next");
    EXPECT_EQ(LastPlayed(), player.Entries().PathAt(next));
    Run("Previous");
    EXPECT_EQ(LastPlayed(), player.Entries().PathAt(order.At(position)));
    Run("Pause");
    const auto starts = Starts();
    Run("Play");
    EXPECT_EQ(Starts(), starts);
    EXPECT_FALSE(player.State().isPaused);
    Run("IncreaseSpeed");
    Run("Next");
    EXPECT_EQ(trace.rateSet, 2);
    player.Window().DockPlaylist(PlaylistDock::Left);
    player.Sequence().ListDoubleClicked();
    EXPECT_EQ(player.Window().Dock(), PlaylistDock::Left);
}

TEST_F(WaysTest, the_end_of_the_list_does_as_it_is_named_under_repeat_all_too)
{
    StartFamiliar(2, kPlayContinuous, kRepeatAll);
    Run("RestartTheComputer");
    EndItem();
    EXPECT_EQ(LastPlayed(), "/b.avi");
    EndItem();
    EXPECT_EQ(world.power.restarts, 1);
    EXPECT_FALSE(IsLoaded());
    Run("ExitZentaro");
    Run("Play");
    EndItem();
    EXPECT_EQ(world.window.closes, 1);
    EXPECT_EQ(world.power.powerOffs, 0);
}

TEST_F(WaysTest, files_of_all_types_and_listed_ones_are_taken_without_a_word)
{
    auto& player = StartFamiliar(2, kPlayContinuous, kNoRepeat);
    Add("/a.avi", true);
    EXPECT_EQ(LastPlayed(), "/a.avi");
    EXPECT_EQ(List().SelectedItem(), 0);
    EXPECT_TRUE(world.dialogs.boxes.empty());
    for (const auto* name : { "song.flac", "note.txt" })
        std::ofstream(folder / name) << "x";
    player.Files().DropOnList({ (folder / "song.flac").string(), (folder / "note.txt").string() });
    world.Settle();
    EXPECT_EQ(player.Entries().Count(), 3);
    EXPECT_EQ(world.window.offers.back(), "1 of 2 could not be opened: ShowFailures");
    Run("ShowFailures");
    EXPECT_NE(world.dialogs.boxes.back().find("note.txt"), std::string::npos);
    world.receive("/later.avi *Add", [] {});
    world.Settle();
    EXPECT_EQ(player.Entries().Count(), 4);
    EXPECT_EQ(LastPlayed(), "/a.avi");
}

TEST_F(WaysTest, a_line_that_names_files_brings_them_all)
{
    std::vector<std::string> names;
    for (const auto* name : { "b.avi", "a.avi" }) {
        std::ofstream(folder / name) << "x";
        names.push_back((folder / name).string());
    }
    EXPECT_EQ(NamedFiles({ names[0], (folder / "missing.avi").string() }), std::vector<std::string>());
    EXPECT_EQ(NamedFiles({ names[0] }), std::vector<std::string>());
    world.files = NamedFiles(names);
    world.own.Set("choice.familiarWays", "1");
    auto& player = Start(names[0] + " " + names[1]);
    EXPECT_EQ(LastPlayed(), names[0]);
    EXPECT_EQ(player.Entries().PathAt(1), names[1]);
    // Beside a player that runs they go there.
    world.alive = "probe";
    world.store.values = { { HandOverKey() + ":txtHwnd", "command" }, { HandOverKey() + ":txtHwnd1", "probe" },
        { HandOverKey() + ":AddHandle", "add" } };
    EXPECT_FALSE(world.Load(names[0] + " " + names[1]));
    EXPECT_EQ(world.sent, (std::vector<std::string>{ "command:" + names[0], "add:" + names[1] }));
}

TEST_F(WaysTest, only_the_engine_ends_an_item)
{
    StartFamiliar(2, kPlayContinuous, kNoRepeat);
    trace.time = trace.length = 2000;
    world.player->OnPositionTick();
    EXPECT_EQ(LastPlayed(), "/a.avi");
    EndItem();
    EXPECT_EQ(LastPlayed(), "/b.avi");
}

TEST_F(WaysTest, recent_files_stand_newest_first_once_and_can_be_cleared)
{
    Store([](PlayerSettings& settings) { settings.KeepHistory = 1; });
    Start().SetFamiliarWays(true);
    Add("/b.avi", true);
    Add("/a.avi", true);
    Run("Previous");
    Run("Next");
    const auto caption = [&](int slot) { return world.player->BothMenus().frmMenu.Find("mnuRecent", slot)->caption; };
    EXPECT_EQ(caption(0) + "|" + caption(1) + "|" + caption(2), "a.avi|b.avi|");
    Run("ClearHistory");
    EXPECT_EQ(caption(0), "<No History>");
    EXPECT_FALSE(IsEnabled("History0"));
}

TEST_F(WaysTest, the_choice_is_kept_and_a_list_comes_back_by_itself)
{
    StartFamiliar(2, kPlayContinuous, kNoRepeat);
    trace.length = 6'000'000;
    trace.time = 3'000'000;
    world.player->OnPositionTick();
    world.player->Unload();
    world.player.reset();
    world.timers.clear();
    world.store.values.clear();
    trace.time = 0;
    auto& player = Start();
    EXPECT_EQ(player.Entries().Count(), 2);
    world.player->OnPositionTick();
    EXPECT_DOUBLE_EQ(trace.time, 3'000'000);
}

} // namespace
} // namespace zentaro
