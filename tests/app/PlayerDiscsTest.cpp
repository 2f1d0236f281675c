#include "app/DriveQueries.h"
#include "tests/app/PlayerFixture.h"
#include "tests/world/PostedWork.h"

#include <future>

using namespace zentaro;
using namespace std::chrono_literals;

namespace {

using Drives = std::vector<platform::OpticalDrive>;

platform::OpticalDrive Disc(const std::string& name, const std::string& label)
{
    return { name, label, true, label };
}

platform::OpticalDrive Empty(const std::string& name)
{
    return { name, {}, false, {} };
}

class DiscsTest : public PlayerTest {
protected:
    DiscSession& Discs() { return world.player->Discs(); }
    void Choose(int index)
    {
        Discs().dvdsList_Click(index);
        world.Elapse(500ms);
    }
    /// The drives answer, after a tick that lets the watcher see to them.
    void TickAndFind(const Drives& drives)
    {
        world.player->OnPositionTick();
        Discs().DrivesFound(drives);
        world.Elapse(500ms);
        world.Elapse(500ms);
    }
    /// What both menus list when the drives have answered, with a star what cannot be chosen.
    std::string Listed(const Drives& drives)
    {
        Discs().DrivesFound(drives);
        const auto& menus = world.player->BothMenus();
        std::string texts;
        for (const auto& item : menus.SmartMenuXP1.Items())
            texts += item.parent != "OpenDVD" || !item.visible ? "" : item.caption + (item.enabled ? ", " : "*, ");
        texts += "and";
        for (int i = 0; i < menus.frmMenu.Count("dvdsList"); ++i) {
            const auto& item = *menus.frmMenu.Find("dvdsList", i);
            texts += " " + item.caption + (item.enabled ? "" : "*");
        }
        return texts;
    }
};

} // namespace

TEST_F(DiscsTest, both_menus_list_the_drives_by_their_discs)
{
    Start();
    const std::string none = "<No DVD drives were found>*";
    EXPECT_EQ(Listed({}), none + ", and " + none);
    const auto one = Disc("D:", "ONE");
    const auto two = Disc("E:", "TWO");
    EXPECT_EQ(Listed({ one, two, Empty("F:") }),
        "ONE (D:), TWO (E:), <Please insert a DVD> (F:), and ONE (D:) TWO (E:) <Please insert a DVD> (F:)");
    // Drives that go leave their slots behind; from two to none the first one goes along.
    EXPECT_EQ(Listed({ one }), "ONE (D:), TWO (E:), <Please insert a DVD> (F:), and ONE (D:)");
    EXPECT_EQ(Listed({}), none + ", TWO (E:), <Please insert a DVD> (F:), and " + none);
    Listed({ one, two });
    EXPECT_EQ(Listed({}), "TWO (E:), <Please insert a DVD> (F:), and " + none);
}

TEST_F(DiscsTest, a_video_disc_is_looked_for_in_the_drive_that_its_label_names_first)
{
    const auto starts = [this](const Drives& drives) {
        Start();
        trace.played.clear();
        TickAndFind(drives);
        return !trace.played.empty();
    };
    EXPECT_TRUE(starts({ Disc("/dev/sr10", "MOVIE") }));
    EXPECT_FALSE(starts({ { "D:", "DATA", false, {} } }));
    EXPECT_FALSE(starts({ Empty("D:") }));
    EXPECT_FALSE(starts({ Disc("D:", "MOVIE (UK)") }));
    EXPECT_FALSE(starts({ Disc("/dev/sr0", "MOVIE (") }));
    EXPECT_TRUE(starts({ Disc("D:", "MOVIE(D:1") })); // two characters, whatever follows them
    EXPECT_TRUE(starts({ { "D:", "DATA (E:)", false, {} }, Disc("E:", "MOVIE") }));
}

TEST_F(DiscsTest, a_disc_replaces_the_list_and_plays_by_its_root_after_half_a_second)
{
    auto& player = StartWithEntries(2, kPlayContinuous, kRepeatAll);
    Discs().DrivesFound({ Disc("/dev/sr0", "MOVIE") });
    EXPECT_EQ(LastPlayed(), "/a.avi"); // while something plays the answer only fills the menus
    player.Window().SetPlaylistPosition(PlaylistDock::Whole);
    Discs().dvdsList_Click(0);
    world.Elapse(499ms);
    player.OnPositionTick();
    EXPECT_EQ(player.State().timeText, "LOADING...");
    EXPECT_EQ(trace.plays, 1);
    world.Elapse(1ms);
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr0>");
    EXPECT_EQ(trace.plays, 2);
    EXPECT_EQ(player.Window().Dock(), PlaylistDock::Hidden);
    ASSERT_EQ(player.Entries().Count(), 1);
    const auto entry = *player.Entries().EntryAt(0);
    EXPECT_EQ(entry.Title + "|" + entry.FullPath + "|" + entry.MediaInfo, "MOVIE (/dev/sr0)|dvd:///dev/sr0|Video DVD");
    EXPECT_EQ(player.Entries().List().PlayingItem(), 0);
    EXPECT_EQ(player.Entries().List().SelectedItem(), 0);
    EXPECT_EQ(player.Window().Caption(), "Zentaro - (dvd:///dev/sr0)");
    EXPECT_EQ(trace.options[2], "snapshot-path=C:\\\\MOVIE Images");
    Run("Quieter"); // goes to the menu of the disc
    Run("PressOnVideo");
    trace.title = 1; // no menu any more
    Run("Quieter");
    EXPECT_EQ(trace.keys, (std::vector{ DiscKey::Down, DiscKey::Activate }));
    EXPECT_EQ(trace.volume, 95);
}

TEST_F(DiscsTest, a_disc_ends_by_the_engines_word_alone_and_nothing_follows)
{
    auto& player = StartWithEntries(1, kPlayNormal, kNoRepeat);
    player.Sequence().DoAfter(1);
    Discs().DrivesFound({ Disc("/dev/sr0", "MOVIE") });
    Choose(0);
    trace.time = trace.length = 4'800; // a menu waits
    player.OnPositionTick();
    EXPECT_TRUE(IsLoaded());
    EndItem();
    EXPECT_FALSE(IsLoaded());
    EXPECT_FALSE(Discs().Navigate(DiscKey::Down));
    EXPECT_EQ(world.power.powerOffs + world.power.restarts, 0);
    const auto engines = Starts();
    player.Sequence().CMDPlayClick(); // the same engine goes on with the disc
    EXPECT_EQ(Starts(), engines);
    EXPECT_TRUE(IsLoaded());
    // From the list it plays in an engine of its own, and is a disc all the same.
    player.Sequence().PlayEntry(0);
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr0>");
    EXPECT_EQ(player.BothMenus().SmartMenuXP1.Find("History1")->caption, "MOVIE (/dev/sr0)");
    trace.time = trace.length = 4'800;
    player.OnPositionTick();
    EXPECT_TRUE(IsLoaded());
    Add("/b.avi", true);
    player.OnPositionTick();
    EXPECT_FALSE(IsLoaded());
    EXPECT_EQ(world.power.restarts, 1);
}

TEST_F(DiscsTest, what_happens_while_a_disc_is_awaited_holds)
{
    auto& player = StartWithEntries(1, kPlayNormal, kNoRepeat);
    Discs().DrivesFound({ Disc("/dev/sr0", "MOVIE"), Disc("/dev/sr1", "OTHER") });
    const auto meanwhile = [&](const std::function<void()>& work) {
        Discs().dvdsList_Click(0);
        work();
        world.Elapse(500ms);
    };
    meanwhile([&] { Run("Stop"); });
    EXPECT_FALSE(IsLoaded());
    meanwhile([&] { Add("/b.avi", true); });
    EXPECT_EQ(LastPlayed(), "/b.avi");
    meanwhile([&] { Discs().dvdsList_Click(1); });
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr1>");
    EXPECT_TRUE(IsLoaded());
    meanwhile([&] { player.Editing().RemoveAll(); });
    EXPECT_FALSE(IsLoaded());
}

TEST_F(DiscsTest, a_disc_that_cannot_be_played_is_said_and_an_empty_drive_does_nothing)
{
    auto& player = StartWithEntries(1, kPlayNormal, kNoRepeat);
    Choose(0);
    Discs().DrivesFound({ Empty("/dev/sr0"), { "/dev/sr1", "DATA", false, {} } });
    Choose(0);
    Choose(7);
    EXPECT_EQ(player.Entries().Count(), 1);
    EXPECT_EQ(LastPlayed(), "/a.avi");
    Choose(1);
    trace.state = Engine::kFailed;
    player.OnPositionTick();
    EXPECT_EQ(world.dialogs.boxes, std::vector<std::string>{ "Zentaro: Please insert a valid DVD." });
    EXPECT_EQ(player.State().timeText, "");
    trace.takesItems = false;
    Choose(1);
    EXPECT_EQ(world.dialogs.boxes.size(), 2u);
    EXPECT_FALSE(IsLoaded());
}

TEST_F(DiscsTest, the_watcher_starts_each_video_disc_once_while_nothing_plays)
{
    const auto movie = Disc("/dev/sr0", "MOVIE");
    auto& player = Start();
    Discs().OnDVDTick();
    EXPECT_EQ(world.driveQuestions, 0);
    Discs().DrivesFound({ movie });
    EXPECT_TRUE(trace.played.empty()); // not before the first tick
    player.OnPositionTick();
    Discs().OnDVDTick();
    EXPECT_EQ(world.driveQuestions, 1);
    Discs().DrivesFound({ { "/dev/sr0", "DATA", false, {} } });
    EXPECT_TRUE(trace.played.empty());
    TickAndFind({ movie });
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr0>");
    EXPECT_FALSE(Discs().IsWatching());
    EXPECT_TRUE(IsEnabled("Remove") && IsEnabled("Next"));
    Run("Stop");
    TickAndFind({ movie });
    EXPECT_TRUE(Discs().IsWatching());
    EXPECT_EQ(Starts(), 1U); // stopped, and still in the drive
    TickAndFind({ Empty("/dev/sr0") });
    TickAndFind({ movie, Disc("/dev/sr1", "OTHER") });
    EXPECT_EQ(Starts(), 3U); // the second replaces the first
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr1>");
}

TEST(DriveQueriesTest, a_change_while_a_question_is_out_is_told_of_when_it_is_answered)
{
    struct SlowDrives : platform::Drives {
        std::vector<platform::OpticalDrive> Find() override
        {
            isSpun.get_future().wait();
            return {};
        }
        bool Watch(std::function<void()> onChange) override
        {
            changed = std::move(onChange);
            return true;
        }
        std::promise<void> isSpun;
        std::function<void()> changed;
    };
    const auto drives = std::make_shared<SlowDrives>();
    const auto posted = std::make_shared<PostedWork>();
    DriveQueries queries(drives, [posted](auto work) { posted->Add(std::move(work)); });
    std::string heard;
    queries.onChange = [&] { heard += "changed "; };
    queries.onFound = [&](auto) { heard += "found "; };
    ASSERT_TRUE(queries.Watch());
    drives->changed();
    EXPECT_TRUE(posted->RunUntil([&] { return heard == "changed "; }));
    queries.Ask();
    drives->changed();
    drives->changed();
    posted->RunUntil([] { return true; });
    EXPECT_EQ(heard, "changed ");
    drives->isSpun.set_value();
    EXPECT_TRUE(posted->RunUntil([&] { return heard.size() > std::string("changed found ").size(); }));
    EXPECT_EQ(heard, "changed found changed ");
}
