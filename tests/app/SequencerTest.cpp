#include "tests/app/PlayerFixture.h"

using namespace zentaro;

TEST_F(PlayerTest, continuous_play_goes_round_and_normal_play_stops)
{
    auto& player = StartWithEntries(2, kPlayContinuous, kRepeatAll);
    EndItem();
    EXPECT_EQ(LastPlayed(), "/b.avi");
    EndItem();
    EXPECT_EQ(LastPlayed(), "/a.avi");
    player.Sequence().SetRepeatMode(kRepeatSingle);
    EndItem();
    EXPECT_EQ(LastPlayed(), "/a.avi");
    EXPECT_EQ(Starts(), 4u);
    player.Sequence().PBNormal();
    player.Sequence().SetRepeatMode(kRepeatAll);
    EndItem();
    EXPECT_EQ(Starts(), 4u);
    EXPECT_FALSE(IsLoaded());
    EXPECT_EQ(player.State().timeText, "00:00:00 / 00:00:00");
    player.Sequence().cmdNextClick();
    EXPECT_EQ(Starts(), 4u); // nothing is loaded
    player.Sequence().SetRepeatMode(kRepeatSingle);
    player.Sequence().CMDPlayClick();
    player.Editing().RemoveAll();
    EndItem();
    EXPECT_EQ(world.dialogs.asked, 1); // again, but of what
}

TEST_F(PlayerTest, what_follows_is_made_ready_shortly_before_the_end_and_once)
{
    auto& player = StartWithEntries(3, kPlayContinuous, kNoRepeat);
    const auto readyAt = [&](double time) {
        trace.time = time;
        trace.length = 60'000;
        world.engines.ready.clear();
        player.OnPositionTick();
        return world.engines.ready;
    };
    EXPECT_EQ(readyAt(50'000), "");
    EXPECT_EQ(readyAt(57'000), "/b.avi ");
    EXPECT_EQ(readyAt(57'500), "");
    player.Sequence().SetRepeatMode(kRepeatSingle);
    EXPECT_EQ(readyAt(58'000), "/a.avi ");
    EXPECT_EQ(readyAt(10'000), "none ");
    player.Sequence().SetRepeatMode(kNoRepeat);
    EndItem();
    EXPECT_EQ(readyAt(57'000), "/c.avi ");
    EndItem();
    EXPECT_EQ(readyAt(57'000), "");
    player.Sequence().SetRepeatMode(kRepeatAll);
    EXPECT_EQ(readyAt(57'500), "/a.avi ");
    player.Sequence().StopAfterThis(true);
    EXPECT_EQ(readyAt(57'900), "none ");
    EXPECT_EQ(LastPlayed(), "/c.avi"); // nothing has moved
}

TEST_F(PlayerTest, a_new_play_mode_builds_a_new_order)
{
    auto& player = StartWithEntries(3, kPlayContinuous, kRepeatAll);
    // Slots 2, 0 and 1 for the three entries.
    world.random = [draws = std::vector{ 0.9, 0.1, 0.5 }, next = 0U]() mutable { return draws[next++ % 3]; };
    player.Sequence().PBShuffle();
    EndItem();
    EXPECT_EQ(LastPlayed(), "/c.avi");
    player.Sequence().PBCont();
    player.Entries().List().SetSelectedItem(0);
    player.Sequence().ListClicked();
    EndItem();
    EXPECT_EQ(LastPlayed(), "/b.avi");
}

TEST_F(PlayerTest, an_order_that_names_a_removed_entry_plays_nothing)
{
    auto& player = StartWithEntries(3, kPlayContinuous, kRepeatAll);
    player.Editing().Remove(); // the order is now "1", "2" for two entries
    EndItem();
    EXPECT_EQ(Starts(), 1u);
    EXPECT_FALSE(IsLoaded());
    EXPECT_EQ(trace.stops, 1); // no frozen picture of what is gone
    EXPECT_EQ(player.State().progress, 0);
    EXPECT_EQ(player.Window().Caption(), "Zentaro");
}

TEST_F(PlayerTest, what_cannot_be_played_is_named_and_passed_in_the_direction_of_travel)
{
    auto& player = StartWithEntries(4, kPlayContinuous, kNoRepeat);
    player.Sequence().cmdNextClick();
    Fail();
    EXPECT_EQ(world.window.notes.back(), "b.avi cannot be played");
    EXPECT_EQ(LastPlayed(), "/c.avi");
    player.Sequence().cmdPreviousClick();
    Fail(); // and not to c again
    EXPECT_EQ(LastPlayed(), "/a.avi");
    player.Sequence().PBNormal();
    player.Sequence().cmdNextClick();
    Fail();
    EXPECT_EQ(LastPlayed(), "/c.avi");
    EndItem(); // the journey is over: the modes count again
    EXPECT_FALSE(IsLoaded());
}

TEST_F(PlayerTest, a_round_of_failures_stops_with_a_note_and_runs_nothing)
{
    for (const auto mode : { kPlayNormal, kPlayContinuous, kPlayShuffle }) {
        for (const auto repeat : { kNoRepeat, kRepeatSingle, kRepeatAll }) {
            auto& player = StartWithEntries(3, mode, repeat);
            player.Sequence().DoAfter(1);
            world.window.notes.clear();
            trace.time = trace.length = 0;
            Fail(10);
            EXPECT_FALSE(IsLoaded());
            EXPECT_FALSE(world.window.notes.empty());
        }
    }
    EXPECT_EQ(world.power.restarts, 0);
    EXPECT_TRUE(world.dialogs.boxes.empty());
}

TEST_F(PlayerTest, an_item_that_plays_and_a_choice_of_the_user_begin_the_count_of_failures_anew)
{
    auto& player = StartWithEntries(3, kPlayContinuous, kRepeatAll);
    Fail(2);
    EndItem();
    trace.time = trace.length = 0;
    Fail(2);
    EXPECT_TRUE(IsLoaded());
    player.Sequence().PlayEntry(0);
    Fail(2);
    EXPECT_TRUE(IsLoaded());
    Fail();
    EXPECT_FALSE(IsLoaded());
}

TEST_F(PlayerTest, the_after_play_action_runs_at_the_end_of_the_sequence_only_and_is_what_the_next_one_is_named_for)
{
    auto& player = StartWithEntries(2, kPlayContinuous, kNoRepeat);
    const auto done = [&] {
        return std::to_string(world.power.powerOffs) + std::to_string(world.power.restarts)
            + std::to_string(world.window.closes) + " " + Checked(kAfterPlayKeys);
    };
    EXPECT_EQ(done(), "000 Donothing ");
    // A value that has no item is stored too, and leaves the marks.
    for (const auto& [action, after] : { std::pair(2, "100 RestartTheComputer "), { 4, "100 RestartTheComputer " },
             { 1, "110 ExitZentaro " }, { 3, "111 ShutdownTheComputer " }, { 0, "111 Donothing " } }) {
        player.Sequence().DoAfter(static_cast<std::int16_t>(action));
        player.Sequence().PlayEntry(0);
        const auto before = done();
        EndItem();
        EXPECT_EQ(done(), before);
        EndItem();
        EXPECT_EQ(done(), after);
    }
    player.Sequence().DoAfter(2);
    player.Sequence().SetRepeatMode(kRepeatAll);
    player.Sequence().CMDPlayClick();
    EndItem();
    EndItem();
    EXPECT_EQ(world.power.powerOffs, 1);
}
