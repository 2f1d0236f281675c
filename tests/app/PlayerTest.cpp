#include "tests/app/PlayerFixture.h"

using namespace zentaro;

namespace {

constexpr const char* kCommandKey = "Software\\Quorvane Zentaro\\Setting:txtHwnd";
constexpr const char* kProbeKey = "Software\\Quorvane Zentaro\\Setting:txtHwnd1";

} // namespace

TEST_F(PlayerTest, types_are_taken_once_the_start_is_over_or_when_it_ends)
{
    auto settings = DefaultSettings("/", {});
    settings.Associations[20] = -1;
    WriteConfig(FormatConfigurations(settings));
    Start("/clips/a.avi");
    EXPECT_EQ(associations.ours, -1);
    later();
    EXPECT_EQ(associations.ours, 1);
    EXPECT_EQ(store.values[".avi:"] + store.values[".avi:OldAss"], "Zentaro.aviother.desktop");
    associations.ours = -1;
    player->Unload();
    EXPECT_EQ(associations.ours, -1);

    Start("/clips/a.avi");
    player->Unload();
    EXPECT_EQ(associations.ours, 1);
    associations.ours = -1;
    later();
    EXPECT_EQ(associations.ours, -1);
}

TEST_F(PlayerTest, a_call_that_nobody_answers_makes_a_player)
{
    store.values = { { kCommandKey, "1" }, { kProbeKey, "4712" } };
    otherPlayerLives = true;
    sendSucceeds = false;
    Start();
    EXPECT_TRUE(isPlayer);
    EXPECT_EQ(sent, std::vector<std::string>{ "4712:Hello" });
    EXPECT_EQ(store.values[kCommandKey], "4711");
}

TEST_F(PlayerTest, the_files_of_starts_play_in_fresh_engines_one_at_a_time)
{
    auto settings = DefaultSettings("/", {});
    settings.LaunchFullScreen = -1;
    WriteConfig(FormatConfigurations(settings));
    Start("/clips/a b.avi");
    EXPECT_EQ(screen.caption, "Zentaro - (/clips/a b.avi)");
    EXPECT_TRUE(screen.isFullScreen);
    EXPECT_EQ(engines.trace.options[2], "snapshot-path=C:\\\\a b.avi Images");
    player->Host().SetVolume(40);
    player->Host().ToggleMute();
    player->ReceiveText("");
    player->ReceiveText("/clips/no media.txt");
    EXPECT_EQ(engines.trace.played, (std::vector<std::string>{ "/clips/a b.avi", "/clips/no media.txt" }));
    EXPECT_EQ(engines.trace.mostAlive, 1);
    EXPECT_EQ(engines.trace.volume, 40);
    EXPECT_TRUE(engines.trace.muted);
    EXPECT_EQ(engines.trace.rateSet, 0); // a fresh engine runs at 1.0 by itself
    EXPECT_TRUE(screen.isFullScreen);    // it survives the change of the item
    EXPECT_NE(screen.log.str().find("flash pump 6"), std::string::npos);
    player->PlayItem(static_cast<std::int16_t>(player->Entries().Count()), false);
    player->PlayItem(-1, false);
    EXPECT_EQ(engines.trace.played.size(), 2u);
}

TEST_F(PlayerTest, the_end_saves_where_the_window_is_unless_it_is_maximised)
{
    Start();
    screen.left = -1200.5;
    player->WindowResized(640, 480);
    player->Unload();
    EXPECT_TRUE(ended);
    auto saved = *ParseConfigurations(*ConfigText());
    EXPECT_EQ(saved.WindowLeft, -1200);
    EXPECT_EQ(saved.WindowWidth, 640);

    screen.maximized = true;
    screen.left = 0;
    player->WindowResized(1280, 800);
    player->Unload();
    saved = *ParseConfigurations(*ConfigText());
    EXPECT_EQ(saved.WindowLeft, -1200);
    EXPECT_EQ(saved.WindowWidth, 640);
}

TEST_F(PlayerTest, a_file_that_is_gone_or_read_only_at_the_end_stays_so)
{
    Start();
    const auto before = ConfigText();
    screen.left = 999;
    fs::permissions(ConfigPath(), fs::perms::owner_read);
    EXPECT_FALSE(player->WriteConfigurations());
    EXPECT_EQ(ConfigText(), before);
    fs::permissions(ConfigPath(), fs::perms::owner_all);
    fs::remove(ConfigPath());
    EXPECT_FALSE(player->WriteConfigurations());
    EXPECT_FALSE(fs::exists(ConfigPath()));
}

TEST_F(PlayerTest, continuous_play_goes_round_and_normal_play_stops)
{
    auto& loaded = StartWithEntries(2, kPlayContinuous, kRepeatAll);
    EndItem();
    EXPECT_EQ(LastPlayed(), "/b.avi");
    EndItem();
    EXPECT_EQ(LastPlayed(), "/a.avi");
    loaded.SetRepeatMode(kRepeatSingle);
    EndItem();
    EXPECT_EQ(LastPlayed(), "/a.avi");
    EXPECT_EQ(engines.trace.played.size(), 4u);
    loaded.PBNormal();
    loaded.SetRepeatMode(kRepeatAll);
    EndItem();
    EXPECT_EQ(engines.trace.played.size(), 4u);
    EXPECT_FALSE(loaded.MediaControlsEnabled());
    loaded.OnPositionTick();
    EXPECT_EQ(screen.timeText, "00:00:00 / 00:00:00");
    loaded.cmdNextClick();
    EXPECT_EQ(engines.trace.played.size(), 4u); // nothing is loaded
}

TEST_F(PlayerTest, an_order_that_names_a_removed_entry_plays_nothing)
{
    auto& loaded = StartWithEntries(3, kPlayContinuous, kRepeatAll);
    loaded.RemoveSelected(); // the order is now "1", "2" for two entries
    EndItem();
    EXPECT_EQ(engines.trace.played.size(), 1u);
    EXPECT_FALSE(loaded.MediaControlsEnabled());
}

TEST_F(PlayerTest, a_round_in_which_nothing_plays_stops_with_a_note)
{
    auto& loaded = StartWithEntries(3, kPlayContinuous, kRepeatAll);
    engines.trace.state = Engine::kFailed;
    for (int tick = 0; tick < 10; ++tick)
        loaded.OnPositionTick();
    EXPECT_EQ(engines.trace.played.size(), 3u);
    EXPECT_FALSE(loaded.MediaControlsEnabled());
    EXPECT_FALSE(screen.note.empty());
    EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(PlayerTest, chosen_files_are_added_and_only_the_first_plays)
{
    Start();
    screen.chosen = { std::string("/clips\0c.avi\0d.avi", 18), "/more/e.avi" };
    player->CMDPlayClick(); // an empty list asks for files
    while (inspections.AnswerOne(*player))
        ;
    EXPECT_EQ(player->Entries().Count(), 3);
    EXPECT_EQ(player->Entries().EntryAt(2)->Title, "e.avi");
    EXPECT_EQ(engines.trace.played, std::vector<std::string>{ "/clips/c.avi" });
}

TEST_F(PlayerTest, the_after_play_action_runs_at_the_end_of_the_sequence_only)
{
    auto& loaded = StartWithEntries(2, kPlayContinuous, kNoRepeat);
    loaded.DoAfter(2);
    EndItem();
    EXPECT_EQ(power.powerOffs + power.restarts, 0);
    EndItem();
    EXPECT_EQ(power.powerOffs, 1);
    EXPECT_EQ(engines.trace.played.size(), 2u);
    loaded.SetRepeatMode(kRepeatAll);
    loaded.CMDPlayClick();
    EndItem();
    EndItem();
    EXPECT_EQ(power.powerOffs, 1);
}

TEST_F(PlayerTest, what_is_held_ends_with_the_item_and_the_rate_starts_anew)
{
    auto& loaded = StartWithEntries(2, kPlayContinuous, kRepeatAll);
    loaded.IncreaseRate();
    EXPECT_EQ(engines.trace.rateSet, 2);
    loaded.cmdffMouseDown();
    EXPECT_EQ(engines.trace.rateSet, 10);
    loaded.RewindPressed();
    loaded.cmdStopClick();
    EXPECT_EQ(engines.trace.rateSet, 1);
    EXPECT_FALSE(loaded.IsRewinding());
    EXPECT_EQ(screen.rateText, "Playing rate:1x");
    loaded.CMDPlayClick();
    EXPECT_EQ(loaded.Rate().Value(), 1);
    EXPECT_EQ(screen.rateText, "Loading...");
}

TEST_F(PlayerTest, a_snapshot_takes_the_next_free_name_in_the_folder_of_its_file)
{
    auto settings = DefaultSettings("/", {});
    settings.SnapshotPath = (folder / "new" / "shots").string();
    settings.SnapshotPrefix = "up/IMG_";
    WriteConfig(FormatConfigurations(settings));
    Start().LoadThumb("", "/clips/a.avi", false, true);
    player->OnPositionTick();
    // With this test's separator on every system.
    const auto images = fs::path((folder / "new" / "shots").string() + "/a.avi Images");
    player->TakeSnapshot();
    EXPECT_EQ(screen.note, "Saved up_IMG_00001.png|" + images.string() + "/up_IMG_00001.png");
    player->TakeSnapshot();
    player->TakeSnapshot();
    fs::remove(images / "up_IMG_00002.png");
    player->TakeSnapshot();
    EXPECT_TRUE(screen.note.starts_with("Saved up_IMG_00002.png|"));

    fs::remove_all(images);
    std::ofstream(images) << "in the way";
    player->TakeSnapshot();
    EXPECT_EQ(screen.note, "No snapshot could be saved in " + images.string());
    player->cmdStopClick();
    EXPECT_FALSE(player->CanTakeSnapshot());
}
