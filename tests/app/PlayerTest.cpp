#include "tests/app/PlayerFixture.h"

using namespace zentaro;
using namespace std::chrono_literals;

TEST_F(PlayerTest, types_are_taken_once_the_start_is_over_or_when_it_ends)
{
    Store([](PlayerSettings& settings) { settings.Associations[20] = -1; });
    Start("/clips/a.avi");
    EXPECT_EQ(world.associations.ours, -1);
    world.Elapse(2s);
    EXPECT_EQ(world.associations.ours, 1);
    EXPECT_EQ(world.store.values[".avi:"] + world.store.values[".avi:OldAss"], "Zentaro.aviother.desktop");
    world.associations.ours = -1;
    world.player->Unload();
    EXPECT_EQ(world.associations.ours, -1);

    Start("/clips/a.avi").Unload();
    EXPECT_EQ(world.associations.ours, 1);
    world.associations.ours = -1;
    world.Elapse(2s);
    EXPECT_EQ(world.associations.ours, -1);
}

TEST_F(PlayerTest, a_missing_engine_is_said_once_and_all_else_works)
{
    world.engines.missing = "libVLC was not found";
    Start("/clips/a.avi");
    EXPECT_EQ(world.dialogs.boxes.size(), 1U);
    EXPECT_NE(world.dialogs.boxes.at(0).find("libVLC was not found"), std::string::npos);
    EXPECT_EQ(world.player->Entries().Count(), 1);
    world.receive("/clips/b.avi", [] {});
    world.Settle();
    EXPECT_EQ(world.player->Entries().Count(), 2);
    EXPECT_EQ(world.dialogs.boxes.size(), 1U);
}

TEST_F(PlayerTest, the_files_of_starts_play_in_fresh_engines_one_at_a_time)
{
    Store([](PlayerSettings& settings) { settings.LaunchFullScreen = -1; });
    Start("/clips/a b.avi");
    EXPECT_EQ(world.player->Window().Caption(), "Zentaro - (/clips/a b.avi)");
    EXPECT_TRUE(world.window.isFullScreen);
    EXPECT_EQ(trace.options[2], "snapshot-path=C:\\\\a b.avi Images");
    world.player->Transporting().SetVolume(40);
    Run("Mute");
    int done = 0;
    const auto tell = [&] { ++done; };
    world.receive("", tell);
    EXPECT_EQ(done, 1);
    world.receive("/clips/no media.txt", tell);
    EXPECT_EQ(done, 1);
    world.Settle();
    EXPECT_EQ(done, 2);
    EXPECT_EQ(trace.played, (std::vector<std::string>{ "/clips/a b.avi", "/clips/no media.txt" }));
    EXPECT_EQ(trace.mostAlive, 1);
    EXPECT_EQ(trace.volume, 40);
    EXPECT_TRUE(trace.muted);
    EXPECT_EQ(trace.rateSet, 0);            // a fresh engine runs at 1.0 by itself
    EXPECT_TRUE(world.window.isFullScreen); // it survives the change of the item
    EXPECT_EQ(world.window.log.str(), "show flash ");
    world.player->Sequence().PlayItem(static_cast<std::int16_t>(world.player->Entries().Count()), false);
    world.player->Sequence().PlayItem(-1, false);
    EXPECT_EQ(Starts(), 2u);
}

TEST_F(PlayerTest, senders_wait_neither_for_each_other_nor_for_a_box)
{
    Start("/clips/first.avi");
    std::string done;
    const auto tell = [&](char who) { return [&done, who] { done += who; }; };
    world.receive("/pipe.avi", tell('a')); // its inspection never ends
    world.receive("/bad.avi", tell('b'));
    world.receive("/good.avi", tell('c'));
    world.Answer(world.inspections.atWork.rbegin()->first);
    EXPECT_EQ(done, "c");
    EXPECT_EQ(LastPlayed(), "/good.avi");
    world.Answer(world.inspections.atWork.rbegin()->first);
    EXPECT_EQ(done, "cb");
    EXPECT_EQ(world.dialogs.OpenBoxes(), 1u);
    world.receive("/good.avi", tell('d')); // said at once to be there already, and the last entry plays after the box
    EXPECT_EQ(done, "cbd");
    EXPECT_EQ(Starts(), 2u);
    world.dialogs.CloseBox();
    world.dialogs.CloseBox();
    EXPECT_EQ(Starts(), 3u);
    world.player->Unload();
    EXPECT_EQ(done, "cbda"); // nobody is kept waiting by a player that ends
    EXPECT_EQ(world.receive, nullptr);
}

TEST_F(PlayerTest, the_end_saves_where_the_window_is_unless_it_is_maximised_or_still_starting)
{
    const auto saved = [this] {
        const auto settings = *ParseConfigurations(*ConfigText());
        return std::to_string(settings.WindowLeft) + " " + std::to_string(settings.WindowWidth);
    };
    world.Load("/clips/a.avi");
    const auto first = saved();
    world.window.left = 900;
    world.player->WindowResized(999, 999); // by the start itself
    IgnoreFailure(world.player->WriteConfigurations());
    EXPECT_EQ(saved(), first);
    world.Settle();
    world.window.left = -1200.5;
    world.player->WindowResized(640, 480);
    world.player->Unload();
    EXPECT_TRUE(world.ended);
    EXPECT_EQ(saved(), "-1200 640");

    world.window.maximized = true;
    world.window.left = 0;
    world.player->WindowResized(1280, 800);
    world.player->Unload();
    EXPECT_EQ(saved(), "-1200 640");
}

TEST_F(PlayerTest, a_file_that_is_read_only_gone_or_a_folder_at_the_end_stays_so)
{
    Start();
    const auto before = ConfigText();
    world.window.left = 999;
    fs::permissions(ConfigPath(), fs::perms::owner_read);
    EXPECT_FALSE(world.player->WriteConfigurations());
    EXPECT_EQ(ConfigText(), before);
    fs::permissions(ConfigPath(), fs::perms::owner_all);
    fs::remove(ConfigPath());
    EXPECT_FALSE(world.player->WriteConfigurations());
    EXPECT_FALSE(fs::exists(ConfigPath()));
    fs::create_directories(ConfigPath() + "/inside");
    Start().Unload();
    EXPECT_TRUE(fs::is_directory(ConfigPath()));
}

TEST_F(PlayerTest, settings_that_cannot_be_read_at_first_are_kept_and_joined_by_what_is_chosen)
{
    const auto aside = folder / "aside";
    Store([](PlayerSettings& settings) {
        settings.PlayMode = 2;
        settings.Associations[0] = -1;
    });
    fs::rename(ConfigPath(), aside);
    fs::create_directory(ConfigPath()); // no text
    world.associations.ours = -2;
    auto& player = Start();
    EXPECT_NE(player.Settings().PlayMode, 2);
    EXPECT_EQ(world.window.notes.size(), 1U);
    fs::remove(ConfigPath());
    fs::rename(aside, ConfigPath());
    const auto before = ConfigText();
    world.Elapse(2s);
    EXPECT_FALSE(player.WriteConfigurations());
    player.Unload();
    EXPECT_EQ(ConfigText(), before);
    EXPECT_EQ(world.associations.ours, -2);

    const auto shown = PagesOf(player.Settings());
    auto chosen = shown;
    chosen.alwaysOnTop = !shown.alwaysOnTop;
    player.CommitOptions(shown, chosen);
    const auto saved = *ParseConfigurations(*ConfigText());
    EXPECT_EQ(saved.PlayMode, 2);
    EXPECT_EQ(saved.AlwaysOnTop != 0, chosen.alwaysOnTop);
    EXPECT_EQ(world.associations.ours, 1);
    EXPECT_EQ(world.window.notes.size(), 1U);
}

TEST_F(PlayerTest, chosen_files_are_added_and_only_the_first_plays)
{
    Start().Sequence().CMDPlayClick(); // an empty list asks for files
    world.dialogs.Choose({ std::string("/clips\0c.avi\0d.avi", 18), "/more/e.avi" });
    world.Settle();
    EXPECT_EQ(world.player->Entries().Count(), 3);
    EXPECT_EQ(world.player->Entries().EntryAt(2)->Title, "e.avi");
    EXPECT_EQ(trace.played, std::vector<std::string>{ "/clips/c.avi" });
}

TEST_F(PlayerTest, sleep_is_held_off_while_a_video_plays_and_the_settings_want_it)
{
    auto& player = StartWithEntries(1, kPlayNormal, kNoRepeat);
    constexpr int kOpening = 1;
    for (const auto& [state, hasVideo] : { std::pair(kOpening, true), { +Engine::kPlaying, true },
             { +Engine::kPaused, true }, { +Engine::kPlaying, false }, { +Engine::kPlaying, true } }) {
        trace.state = state;
        trace.hasVideo = hasVideo;
        player.OnPositionTick();
        EXPECT_EQ(world.isSleepHeldOff, state == Engine::kPlaying && hasVideo);
    }
    player.Transporting().cmdStopClick();
    EXPECT_FALSE(world.isSleepHeldOff);
    const auto shown = PagesOf(player.Settings());
    auto chosen = shown;
    chosen.disableScreenSaver = false;
    player.CommitOptions(shown, chosen);
    player.Sequence().CMDPlayClick();
    player.OnPositionTick();
    EXPECT_FALSE(world.isSleepHeldOff);
}

TEST_F(PlayerTest, a_snapshot_takes_the_next_free_name_in_the_folder_of_its_file)
{
    Store([&](PlayerSettings& settings) {
        settings.SnapshotPath = (folder / "new" / "shots").string();
        settings.SnapshotPrefix = "up/IMG_";
    });
    Start("/clips/a.avi").OnPositionTick();
    trace.takeSnapshot = [](const std::string& file) { return static_cast<bool>(std::ofstream(file) << "picture"); };
    // With this test's separator on every system.
    const auto images = fs::path((folder / "new" / "shots").string() + "/a.avi Images");
    const auto take = [&] {
        Run("Snapshot");
        return world.window.notes.back();
    };
    EXPECT_EQ(take(), "Saved up_IMG_00001.png|" + images.string() + "/up_IMG_00001.png");
    take();
    take();
    fs::remove(images / "up_IMG_00002.png");
    EXPECT_TRUE(take().starts_with("Saved up_IMG_00002.png|"));
    fs::remove_all(images);
    std::ofstream(images) << "in the way";
    EXPECT_EQ(take(), "No snapshot could be saved in " + images.string());
    Run("Stop");
    EXPECT_FALSE(world.player->CanTakeSnapshot());
}

TEST_F(PlayerTest, drops_come_in_their_order_and_one_that_plays_waits_for_none)
{
    auto& files = Start().Files();
    files.DropOnList({ "/b.avi", "/no.txt", "/c.avi" });
    files.DropOnVideo({ "/a.avi" });
    files.DropOnList({ "/d.avi" });
    std::rotate(world.background.begin(), world.background.begin() + 1, world.background.end()); // b and c are slow
    world.Settle();
    std::string titles;
    for (int i = 0; i < world.player->Entries().Count(); ++i)
        titles += world.player->Entries().PathAt(i);
    EXPECT_EQ(titles, "/a.avi/b.avi/c.avi/d.avi");
    EXPECT_EQ(trace.played, std::vector<std::string>{ "/a.avi" });
    files.DropOnVideo({ "/late.avi" });
    world.player->Unload();
    world.Settle();
    EXPECT_EQ(world.player->Entries().Count(), 4);
}

TEST_F(PlayerTest, what_a_user_starts_comes_before_a_list_that_takes_the_whole_window)
{
    Store([](PlayerSettings& settings) {
        settings.PlaylistPosition = static_cast<std::int32_t>(PlaylistDock::Whole);
        settings.PlayMode = kPlayContinuous;
    });
    auto& window = Start().Window();
    EXPECT_EQ(window.Dock(), PlaylistDock::Whole);
    Add("/a.avi", false);
    EXPECT_EQ(window.Dock(), PlaylistDock::Whole);
    for (const auto& start : std::initializer_list<std::function<void()>>{ [&] { Run("Play"); },
             [&] { Add("/b.avi", true); }, [&] { Run("Next"); }, [&] { world.player->Sequence().PlayEntry(0); } }) {
        start();
        EXPECT_EQ(window.Dock(), PlaylistDock::Hidden);
        Run("PlayList");
        EXPECT_EQ(window.Dock(), PlaylistDock::Whole);
    }
    // Who looks at the list while one item follows the other goes on looking at it.
    const auto starts = Starts();
    EndItem();
    EXPECT_EQ(Starts(), starts + 1);
    EXPECT_EQ(window.Dock(), PlaylistDock::Whole);
    window.DockPlaylist(PlaylistDock::Right);
    Run("Play");
    EXPECT_EQ(window.Dock(), PlaylistDock::Right);
}

TEST_F(PlayerTest, options_remember_the_size_that_the_window_has)
{
    Store([](PlayerSettings& settings) { settings.WindowWidth = 900; });
    auto& player = Start();
    const auto shown = PagesOf(player.Settings());
    auto chosen = shown;
    for (const int width : { 900, 400 }) {
        player.CommitOptions(shown, chosen);
        EXPECT_EQ(ParseConfigurations(*ConfigText())->WindowWidth, width);
        chosen.rememberLastSize = true;
    }
}
