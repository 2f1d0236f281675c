#include "tests/app/PlayerFixture.h"

using namespace zentaro;

TEST_F(PlayerTest, commands_by_key_move_playback_and_modes)
{
    auto& loaded = StartWithEntries(3, kPlayContinuous, kRepeatAll);
    EXPECT_EQ(Checked(kPlayModeKeys), "PMContinuous ");
    EXPECT_EQ(Checked(kRepeatModeKeys), "RMRepeatAll ");
    EXPECT_EQ(Checked(kAfterPlayKeys), "Donothing ");
    loaded.RunCommand("Next");
    EXPECT_EQ(LastPlayed(), "/b.avi");
    loaded.RunCommand("Previous");
    EXPECT_EQ(LastPlayed(), "/a.avi");
    loaded.RunCommand("PlayPause");
    EXPECT_EQ(engines.trace.state, Engine::kPaused);
    loaded.RunCommand("FullScreen");
    EXPECT_TRUE(screen.isFullScreen);
    for (const double rate : { 2, 4, 8, 16 }) {
        loaded.RunCommand("IncreaseSpeed");
        EXPECT_EQ(engines.trace.rateSet, rate);
    }
    EXPECT_FALSE(IsEnabled("IncreaseSpeed"));
    loaded.RunCommand("DecreaseSpeed");
    EXPECT_EQ(engines.trace.rateSet, 8);
    EXPECT_TRUE(IsEnabled("IncreaseSpeed"));
    loaded.RunCommand("ResetSpeed");
    EXPECT_EQ(engines.trace.rateSet, 1);
    for (const auto& [keys, value] : { std::pair(kPlayModeKeys, &PlayerSettings::PlayMode),
             std::pair(kRepeatModeKeys, &PlayerSettings::RepeatMode) }) {
        for (std::size_t i = keys.size(); i-- > 0;) {
            loaded.RunCommand(keys[i]);
            EXPECT_EQ(loaded.Settings().*value, static_cast<std::int32_t>(i));
            EXPECT_EQ(Checked(keys), std::string(keys[i]) + " ");
        }
    }
    for (std::size_t i = kAfterPlayKeys.size(); i-- > 0;) {
        loaded.RunCommand(kAfterPlayKeys[i]);
        EXPECT_EQ(loaded.AfterPlaying().AfterPlayAction(), static_cast<std::int16_t>(i));
        EXPECT_EQ(Checked(kAfterPlayKeys), std::string(kAfterPlayKeys[i]) + " ");
    }
    loaded.RunCommand("Stop");
    for (const auto* const key : { "Stop", "FullScreen", "IncreaseSpeed", "DecreaseSpeed", "ResetSpeed" })
        EXPECT_FALSE(IsEnabled(key)) << key;
    EXPECT_EQ(screen.closes, 0);
    loaded.RunCommand("Exit");
    EXPECT_EQ(screen.closes, 1);
}

TEST_F(PlayerTest, commands_on_the_list_come_and_go_with_its_entries)
{
    auto& loaded = StartWithEntries(2, kPlayNormal, kNoRepeat);
    loaded.RunCommand("Remove");
    EXPECT_TRUE(IsEnabled("RemoveAll"));
    loaded.Entries().List().SetSelectedItem(0);
    loaded.RunCommand("Remove");
    EXPECT_EQ(loaded.Entries().Count(), 0);
    EXPECT_TRUE(IsEnabled("Remove"));
    for (const auto* const key : { "RemoveAll", "Next", "Previous" })
        EXPECT_FALSE(IsEnabled(key)) << key;

    loaded.cmdStopClick();
    loaded.RunCommand("PlayPause"); // the dialog is cancelled
    EXPECT_TRUE(IsEnabled("Stop"));

    const auto played = engines.trace.played.size();
    screen.chosen = { std::string("/clips\0c.avi\0d.avi", 18) };
    loaded.Entries().List().Clear();
    loaded.RunCommand("AddVideoFile");
    EXPECT_FALSE(IsEnabled("Next"));
    while (inspections.AnswerOne(loaded))
        ;
    EXPECT_EQ(loaded.Entries().List().SelectedItem(), 0);
    EXPECT_EQ(engines.trace.played.size(), played);
    for (const auto* const key : { "Remove", "RemoveAll", "Next", "Previous" })
        EXPECT_TRUE(IsEnabled(key)) << key;
    loaded.RunCommand("RemoveAll");
    EXPECT_EQ(loaded.Entries().Count(), 0);
    EXPECT_FALSE(IsEnabled("RemoveAll"));

    loaded.RunCommand("OpenFile");
    while (inspections.AnswerOne(loaded))
        ;
    EXPECT_EQ(LastPlayed(), "/clips/c.avi");
}

TEST_F(PlayerTest, dialogs_are_never_under_a_window_that_stays_on_top)
{
    auto settings = DefaultSettings("/", {});
    settings.AlwaysOnTop = settings.ShowInTray = -1;
    WriteConfig(FormatConfigurations(settings));
    Start();
    EXPECT_TRUE(screen.isTopmost && screen.hasTrayIcon);
    screen.log.str({});
    for (const auto* const key : { "Options", "About", "HelpTopics" })
        player->RunCommand(key);
    EXPECT_EQ(screen.log.str(), "options 0 about 0 help ");
    player->DialogClosed();
    EXPECT_TRUE(screen.isTopmost);
    player->Unload();
    EXPECT_FALSE(screen.hasTrayIcon);
}

TEST_F(PlayerTest, keys_without_a_command_do_nothing)
{
    auto& loaded = StartWithEntries(1, kPlayNormal, kNoRepeat);
    loaded.RunCommand("Stop");
    screen.log.str({});
    for (const auto* const key : { "", "exit", "Exit ", "File", "AfterPlay", "DVDList", "DVDList0", "DVDList1",
             "History", "History1", "History10", "History11", "Stop", "FullScreen" })
        loaded.RunCommand(key);
    EXPECT_EQ(screen.log.str(), "");
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_FALSE(screen.closes || screen.isFullScreen);
    EXPECT_EQ(engines.trace.played.size(), 1u);
}

TEST_F(PlayerTest, what_was_played_can_be_played_again_after_a_restart)
{
    Start();
    player->LoadThumb("A & a", "/a.avi", false, true);
    player->LoadThumb("B", "/b.avi", false, true);
    Start();
    engines.trace.played.clear();
    EXPECT_TRUE(IsEnabled("History0"));
    player->RunCommand("History1");
    EXPECT_EQ(player->Entries().EntryAt(0)->Title, "B");
    ClickClassicItem(*player, *player->ClassicMenus().Find("mnuRecent", 0));
    EXPECT_EQ(player->Entries().EntryAt(1)->Title, "A & a");
    // One that is in the list already plays the list's last entry.
    player->RunCommand("History1");
    EXPECT_EQ(engines.trace.played, (std::vector<std::string>{ "/b.avi", "/a.avi", "/a.avi" }));
    EXPECT_EQ(screen.boxes.size(), 1u);
}

TEST_F(PlayerTest, classic_menus_do_the_same_and_take_the_states_when_they_open)
{
    auto& loaded = StartWithEntries(3, kPlayNormal, kNoRepeat);
    auto& menus = loaded.ClassicMenus();
    const auto click = [&](const char* name, int index = 0) { ClickClassicItem(loaded, *menus.Find(name, index)); };
    click("mnuNext");
    EXPECT_EQ(LastPlayed(), "/b.avi");
    click("mnuPrev");
    EXPECT_EQ(LastPlayed(), "/a.avi");
    click("mnufullscreen");
    EXPECT_TRUE(screen.isFullScreen);
    click("mnuPBShuffle");
    click("mnuRMRepeatAll");
    click("mnuAfterPlaying", 2);
    EXPECT_EQ(loaded.AfterPlaying().AfterPlayAction(), 2);
    EXPECT_EQ(Checked(kPlayModeKeys) + Checked(kRepeatModeKeys) + Checked(kAfterPlayKeys),
        "PMShuffle RMRepeatAll RestartTheComputer ");

    loaded.RunCommand("PMContinuous");
    loaded.RunCommand("RMSingleRepeat");
    loaded.RunCommand("ExitZentaro");
    for (const auto* const menu : { "mnuPlayBackMenu", "mnuPlayListmenu", "mnuAfterMenu" })
        OpenClassicMenu(loaded, menu);
    std::string checked;
    for (const auto& item : menus.Items())
        checked += item.checked ? item.name + std::to_string(item.index) + " " : "";
    EXPECT_EQ(checked, "mnuPBCont0 mnuRMSingleRepeat0 mnuAfterPlaying1 ");
    EXPECT_TRUE(menus.Find("mnuincspeed")->enabled && menus.Find("mnustop")->enabled);

    click("mnustop");
    EXPECT_FALSE(loaded.MediaControlsEnabled());
    click("mnuplay");
    EXPECT_TRUE(loaded.MediaControlsEnabled());
    click("mnuPlayListRemove");
    EXPECT_EQ(loaded.Entries().Count(), 2);
    click("mnuPlayListRemoveAll");
    loaded.cmdStopClick();
    for (const auto* const menu : { "mnuPlayBackMenu", "mnuPlayListmenu" })
        OpenClassicMenu(loaded, menu);
    for (const auto* const name :
        { "mnuincspeed", "mnudecSpeed", "mnuresSpeed", "mnustop", "mnuNext", "mnuPrev", "mnuPlayListRemoveAll" })
        EXPECT_FALSE(menus.Find(name)->enabled) << name;
    click("dvdsList");
    click("mnuplay"); // an empty list asks for files
    screen.chosen = { "/clips/new.avi" };
    click("mnuplay");
    while (inspections.AnswerOne(loaded))
        ;
    EXPECT_EQ(LastPlayed(), "/clips/new.avi");
}
