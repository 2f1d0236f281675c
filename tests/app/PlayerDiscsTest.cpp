#include "tests/app/PlayerFixture.h"

using namespace zentaro;

namespace {

platform::OpticalDrive Disc(const std::string& name, const std::string& label)
{
    return { name, label, true, label };
}

} // namespace

TEST_F(PlayerTest, a_disc_replaces_the_list_and_plays_by_its_root_after_half_a_second)
{
    StartWithEntries(2, kPlayContinuous, kRepeatAll);
    player->DrivesFound({ Disc("/dev/sr0", "MOVIE") });
    EXPECT_EQ(LastPlayed(), "/a.avi"); // while something plays the answer only fills the menus
    screen.whilePumping = [&] {
        player->OnPositionTick();
        EXPECT_EQ(screen.timeText, "LOADING...");
        EXPECT_EQ(engines.trace.plays, 1);
    };
    player->dvdsList_Click(0);
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr0>");
    EXPECT_EQ(engines.trace.plays, 2);
    EXPECT_NE(screen.log.str().find("for 500 "), std::string::npos);
    ASSERT_EQ(player->Entries().Count(), 1);
    const auto entry = player->Entries().EntryAt(0);
    EXPECT_EQ(
        entry->Title + "|" + entry->FullPath + "|" + entry->MediaInfo, "MOVIE (/dev/sr0)|dvd:///dev/sr0|Video DVD");
    EXPECT_EQ(player->Entries().List().SelectedItem(), 0);
    EXPECT_EQ(screen.caption, "Zentaro - (dvd:///dev/sr0)");
    EXPECT_TRUE(player->NavigateDisc(DiscKey::Down));
    engines.trace.title = 1; // no menu any more
    EXPECT_FALSE(player->NavigateDisc(DiscKey::Down));
    EXPECT_EQ(engines.trace.keys, std::vector{ DiscKey::Down });
}

TEST_F(PlayerTest, a_disc_ends_by_the_engines_word_alone_and_nothing_follows)
{
    StartWithEntries(1, kPlayNormal, kNoRepeat);
    player->DoAfter(1);
    player->DrivesFound({ Disc("/dev/sr0", "MOVIE") });
    player->dvdsList_Click(0);
    engines.trace.time = engines.trace.length = 4'800; // a menu waits
    player->OnPositionTick();
    EXPECT_TRUE(player->MediaControlsEnabled());
    EndItem();
    EXPECT_FALSE(player->MediaControlsEnabled());
    EXPECT_FALSE(player->NavigateDisc(DiscKey::Down));
    EXPECT_EQ(power.powerOffs + power.restarts, 0);
    const auto engineCount = engines.trace.played.size();
    player->CMDPlayClick(); // the same engine goes on with the disc
    EXPECT_EQ(engines.trace.played.size(), engineCount);
    EXPECT_TRUE(player->MediaControlsEnabled());
    // From the list it plays in an engine of its own, and is a disc all the same.
    player->PlayItem(0, false);
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr0>");
    EXPECT_EQ(player->SmartMenuXP1().Find("History1")->caption, "MOVIE (/dev/sr0)");
    engines.trace.time = engines.trace.length = 4'800;
    player->OnPositionTick();
    EXPECT_TRUE(player->MediaControlsEnabled());
    player->LoadThumb("", "/b.avi", false, true);
    player->OnPositionTick();
    EXPECT_FALSE(player->MediaControlsEnabled());
    EXPECT_EQ(power.restarts, 1);
}

TEST_F(PlayerTest, what_happens_while_a_disc_is_awaited_holds)
{
    StartWithEntries(1, kPlayNormal, kNoRepeat);
    player->DrivesFound({ Disc("/dev/sr0", "MOVIE"), Disc("/dev/sr1", "OTHER") });
    screen.whilePumping = [&] { player->cmdStopClick(); };
    player->dvdsList_Click(0);
    EXPECT_FALSE(player->MediaControlsEnabled());
    screen.whilePumping = [&] { player->LoadThumb("", "/b.avi", false, true); };
    player->dvdsList_Click(0);
    EXPECT_EQ(LastPlayed(), "/b.avi");
    screen.whilePumping = [&] { player->dvdsList_Click(1); };
    player->dvdsList_Click(0);
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr1>");
    EXPECT_TRUE(player->MediaControlsEnabled());
    screen.whilePumping = [&] { player->RemoveAll(); };
    player->dvdsList_Click(0);
    screen.whilePumping = [&] { player->Unload(); };
    player->dvdsList_Click(0);
    EXPECT_FALSE(player->MediaControlsEnabled());
}

TEST_F(PlayerTest, a_disc_that_cannot_be_played_is_said_and_an_empty_drive_does_nothing)
{
    StartWithEntries(1, kPlayNormal, kNoRepeat);
    player->dvdsList_Click(0);
    player->DrivesFound({ { "/dev/sr0", {}, false, {} }, { "/dev/sr1", "DATA", false, {} } });
    player->dvdsList_Click(0);
    player->dvdsList_Click(7);
    EXPECT_EQ(player->Entries().Count(), 1);
    EXPECT_EQ(LastPlayed(), "/a.avi");
    player->dvdsList_Click(1);
    engines.trace.state = Engine::kFailed;
    player->OnPositionTick();
    EXPECT_EQ(screen.boxes, std::vector<std::string>{ "Zentaro: Please insert a valid DVD." });
    EXPECT_EQ(screen.timeText, "");
}

TEST_F(PlayerTest, the_watcher_starts_each_video_disc_once_while_nothing_plays)
{
    const auto movie = Disc("/dev/sr0", "MOVIE");
    Start();
    player->OnDVDTick();
    EXPECT_EQ(driveQuestions, 0);
    player->DrivesFound({ movie });
    EXPECT_TRUE(engines.trace.played.empty()); // not before the first tick
    player->OnPositionTick();
    player->OnDVDTick();
    EXPECT_EQ(driveQuestions, 1);
    player->DrivesFound({ { "/dev/sr0", "DATA", false, {} } });
    EXPECT_TRUE(engines.trace.played.empty());
    player->DrivesFound({ movie });
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr0>");
    EXPECT_FALSE(player->IsWatchingDiscs());
    EXPECT_TRUE(IsEnabled("Remove") && IsEnabled("Next"));
    player->cmdStopClick();
    TickAndFind({ movie });
    EXPECT_TRUE(player->IsWatchingDiscs());
    EXPECT_EQ(engines.trace.played.size(), 1U); // stopped, and still in the drive
    TickAndFind({ { "/dev/sr0", {}, false, {} } });
    TickAndFind({ movie, Disc("/dev/sr1", "OTHER") });
    EXPECT_EQ(engines.trace.played.size(), 3U); // the second replaces the first
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr1>");
}
