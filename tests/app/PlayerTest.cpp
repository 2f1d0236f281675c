#include "tests/app/PlayerFixture.h"

using namespace zentaro;

namespace {

constexpr const char* kCommandKey = "Software\\Quorvane Zentaro\\Setting:txtHwnd";
constexpr const char* kProbeKey = "Software\\Quorvane Zentaro\\Setting:txtHwnd1";

} // namespace

TEST_F(PlayerTest, sleep_is_held_off_while_a_video_plays_and_the_settings_want_it)
{
    auto& started = StartWithEntries(1, kPlayContinuous, kRepeatAll);
    const auto isHeldOff = [&] {
        started.OnPositionTick();
        return sleepHeldOff;
    };
    EXPECT_TRUE(isHeldOff());
    started.CMDPauseClick();
    EXPECT_FALSE(isHeldOff());
    started.CMDPauseClick();
    EXPECT_TRUE(isHeldOff());
    started.cmdStopClick();
    EXPECT_FALSE(sleepHeldOff);
    EXPECT_FALSE(isHeldOff());
    started.CMDPlayClick();
    EXPECT_TRUE(isHeldOff());
    engines.trace.hasVideo = false;
    EXPECT_FALSE(isHeldOff());
    engines.trace.hasVideo = true;
    EXPECT_TRUE(isHeldOff());
    started.Unload();
    EXPECT_FALSE(sleepHeldOff);

    auto settings = DefaultSettings("/", {});
    settings.DisableScreenSaver = 0;
    WriteConfig(FormatConfigurations(settings));
    Start().LoadThumb("", "/a.avi", false, true);
    player->OnPositionTick();
    EXPECT_FALSE(sleepHeldOff);
}

TEST_F(PlayerTest, the_first_start_publishes_its_handles_and_makes_the_settings_file)
{
    Start();
    EXPECT_TRUE(isPlayer);
    EXPECT_EQ(store.values[kCommandKey], "4711");
    EXPECT_EQ(store.values[kProbeKey], "4712");
    EXPECT_EQ(ConfigText(), FormatConfigurations(player->Settings()));
    EXPECT_TRUE(engines.trace.played.empty());
}

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
    const auto choices = player->AssociationChoices();
    ASSERT_EQ(choices.size(), 24U);
    EXPECT_EQ(choices[4].listText, "Mp3 Format Sound(*.mp3)");
    associations.ours = -1;
    player->Unload();
    EXPECT_EQ(associations.ours, -1);

    Start("/clips/a.avi");
    player->Unload();
    EXPECT_EQ(associations.ours, 1);
    associations.ours = -1;
    later();
    EXPECT_EQ(associations.ours, -1);

    const auto before = store.values;
    otherPlayerLives = true;
    later = nullptr;
    Start("/clips/a.avi");
    EXPECT_FALSE(later);
    EXPECT_EQ(store.values, before);
}

TEST_F(PlayerTest, a_messenger_shows_and_publishes_nothing)
{
    store.values = { { kCommandKey, "1" }, { kProbeKey, "4712" } };
    otherPlayerLives = true;
    Start("/clips/a.avi *Add");
    EXPECT_FALSE(isPlayer);
    EXPECT_EQ(sent, std::vector<std::string>{ "1:/clips/a.avi *Add" });
    EXPECT_EQ(store.values[kCommandKey], "1");
    EXPECT_EQ(screen.log.str().find("show"), std::string::npos);
    EXPECT_EQ(engines.trace.mostAlive, 0);
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

TEST_F(PlayerTest, a_start_that_adds_plays_nothing_and_later_files_are_added_too)
{
    Start("/clips/a.avi *Add");
    EXPECT_EQ(player->Entries().Count(), 1);
    EXPECT_EQ(player->Entries().PathAt(0), "/clips/a.avi");
    player->ReceiveText("/clips/b.avi");
    EXPECT_EQ(player->Entries().Count(), 2);
    EXPECT_TRUE(engines.trace.played.empty());
}

TEST_F(PlayerTest, a_damaged_file_is_replaced_and_one_without_a_default_folder_is_not)
{
    WriteConfig("English\r\n/home\r\n 1 \r\n");
    Start();
    EXPECT_EQ(ConfigText(), FormatConfigurations(player->Settings()));

    auto settings = DefaultSettings("  ", {});
    WriteConfig(FormatConfigurations(settings));
    Start();
    EXPECT_NE(player->Settings().DefaultFolder, "  ");
    EXPECT_FALSE(player->Settings().DefaultFolder.empty());
    EXPECT_EQ(ConfigText(), FormatConfigurations(settings));
}

TEST_F(PlayerTest, the_window_comes_back_as_it_was_remembered)
{
    auto settings = DefaultSettings("/", {});
    settings.RememberLastPos = settings.RememberLastSize = settings.AlwaysOnTop = 1;
    settings.WindowLeft = -1200;
    settings.WindowWidth = 800;
    WriteConfig(FormatConfigurations(settings));
    Start();
    EXPECT_TRUE(screen.log.str().starts_with("size 800x515 at -1200,")) << screen.log.str();
    EXPECT_TRUE(screen.isTopmost);
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

TEST_F(PlayerTest, files_that_cannot_be_opened_or_are_there_already_are_told_in_boxes)
{
    auto& loaded = StartWithEntries(2, kPlayContinuous, kRepeatAll);
    EXPECT_EQ(loaded.Inspected().StreamInfoText, "Stream information of /b.avi");
    loaded.LoadThumb("broken.avi", "/broken.avi", false, true);
    EXPECT_EQ(loaded.Inspected().LastSourceError, "No good.");
    EXPECT_EQ(loaded.Entries().Count(), 2);
    loaded.LoadThumb("a.avi", "/a.avi", false, true);
    EXPECT_EQ(screen.boxes,
        (std::vector<std::string>{ "Zentaro: Cannot open file </broken.avi>\r\nNo good.",
            "Media Player: \"a.avi\" is already in your playlist" }));
    // The last entry plays, not the one that was there.
    EXPECT_EQ(LastPlayed(), "/b.avi");
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

TEST_F(PlayerTest, a_double_click_plays_and_hides_the_list_and_the_button_brings_it_back)
{
    auto& loaded = StartWithEntries(2, kPlayContinuous, kRepeatAll);
    loaded.Entries().List().SetSelectedItem(1);
    loaded.ListDoubleClicked();
    EXPECT_EQ(LastPlayed(), "/b.avi");
    EXPECT_EQ(screen.dock, PlaylistDock::Hidden);
    EXPECT_EQ(loaded.Settings().PlaylistPosition, 0);
    loaded.cmdPlayListClick();
    EXPECT_EQ(screen.dock, PlaylistDock::Left);
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

TEST_F(PlayerTest, closing_while_files_are_added_ends_the_waiting)
{
    StartWithEntries(1, kPlayContinuous, kRepeatAll);
    screen.answer = [this] {
        player->Unload();
        return true;
    };
    player->LoadThumb("late.avi", "/late.avi", false, true);
    EXPECT_TRUE(ended);
    EXPECT_EQ(player->Entries().Count(), 1);
    EXPECT_EQ(engines.trace.alive, 0);
}

TEST_F(PlayerTest, a_snapshot_takes_the_next_free_name_in_the_folder_of_its_file)
{
    auto settings = DefaultSettings("/", {});
    settings.SnapshotPath = (folder / "new" / "shots").string();
    settings.SnapshotPrefix = "up/IMG_";
    WriteConfig(FormatConfigurations(settings));
    Start().LoadThumb("", "/clips/a.avi", false, true);
    engines.trace.hasVideo = false;
    player->OnPositionTick();
    player->TakeSnapshot();
    EXPECT_EQ(screen.note, "");

    engines.trace.hasVideo = true;
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
