#include "tests/app/PlayerFixture.h"

#include <set>

using namespace zentaro;

TEST(Commands, every_item_of_both_trees_and_every_key_has_one_meaning)
{
    std::set<std::string_view> ids;
    for (const auto& command : AllCommands())
        EXPECT_TRUE(ids.insert(command.id).second) << command.id;
    const CommandTree tree;
    for (const auto& item : tree.Items()) {
        const bool isCommand =
            item.kind != CommandKind::Separator && !tree.HasSubmenu(item) && !item.key.starts_with("DVDList");
        EXPECT_EQ(ids.count(item.command), isCommand ? 1u : 0u) << item.key;
    }
    const ClassicTree classic;
    for (const auto& item : classic.Items())
        EXPECT_EQ(ids.count(item.command), item.isSeparator || classic.IsMenu(item) ? 0u : 1u) << item.name;
    EXPECT_EQ(tree.Find("AfterPlay")->shortcut, "Ctrl+P");
}

TEST(CommandTree, changes_are_told_by_key_and_unknown_keys_change_nothing)
{
    CommandTree tree;
    std::string told;
    tree.onChange = [&](const CommandItem& item) { told += item.key + " "; };
    tree.SetEnabled("Stop", false);
    tree.SetEnabled("Stop", false);
    tree.CheckOnly(kPlayModeKeys, 2);
    tree.CheckOnly(kPlayModeKeys, 3);
    for (const auto* const unknown : { "", "stop", "DVDList", "History" })
        tree.SetCaption(unknown, "no");
    EXPECT_EQ(told, "Stop PMNormal PMShuffle ");
    EXPECT_FALSE(tree.Find("History0")->enabled || tree.Find("DVDList5")->visible);
    EXPECT_EQ(tree.Find("DVDList6"), nullptr);
}

TEST_F(PlayerTest, commands_by_key_move_playback_and_modes)
{
    auto& player = StartWithEntries(3, kPlayContinuous, kRepeatAll);
    EXPECT_EQ(Checked(kPlayModeKeys) + Checked(kRepeatModeKeys) + Checked(kAfterPlayKeys),
        "PMContinuous RMRepeatAll Donothing ");
    player.RunCommand("Next");
    EXPECT_EQ(LastPlayed(), "/b.avi");
    player.RunCommand("Previous");
    EXPECT_EQ(LastPlayed(), "/a.avi");
    player.RunCommand("PlayPause");
    EXPECT_EQ(trace.state, Engine::kPaused);
    player.RunCommand("FullScreen");
    EXPECT_TRUE(world.window.isFullScreen);
    std::string rates;
    for (const auto* const step : { "Increase", "Decrease", "Reset" }) {
        for (int i = 0; i < 8 && (i == 0 || *step != 'R'); ++i) {
            Run((std::string(step) + "Speed").c_str());
            rates += player.State().rateText.substr(13) + (IsEnabled("IncreaseSpeed") ? "" : "!")
                + (IsEnabled("DecreaseSpeed") ? " " : "? ");
        }
    }
    EXPECT_EQ(rates, "2x 4x 8x 16x! 16x! 16x! 16x! 16x! 8x 4x 2x 1x 0.5x 0.25x 0.125x? 0.125x? 1x ");
    EXPECT_EQ(trace.rateSet, 1);
    for (const auto& [keys, value] : { std::pair(kPlayModeKeys, &PlayerSettings::PlayMode),
             std::pair(kRepeatModeKeys, &PlayerSettings::RepeatMode) }) {
        for (std::size_t i = keys.size(); i-- > 0;) {
            player.RunCommand(keys[i]);
            EXPECT_EQ(player.Settings().*value, static_cast<std::int32_t>(i));
            EXPECT_EQ(Checked(keys), std::string(keys[i]) + " ");
        }
    }
    for (std::size_t i = kAfterPlayKeys.size(); i-- > 0;) {
        player.RunCommand(kAfterPlayKeys[i]);
        EXPECT_EQ(player.Sequence().AfterPlaying().AfterPlayAction(), static_cast<std::int16_t>(i));
        EXPECT_EQ(Checked(kAfterPlayKeys), std::string(kAfterPlayKeys[i]) + " ");
    }
    player.RunCommand("Stop");
    for (const auto* const key : { "Stop", "FullScreen", "IncreaseSpeed", "DecreaseSpeed", "ResetSpeed" })
        EXPECT_FALSE(IsEnabled(key)) << key;
    EXPECT_EQ(world.window.closes, 0);
    player.RunCommand("Exit");
    EXPECT_EQ(world.window.closes, 1);
}

TEST_F(PlayerTest, commands_on_the_list_come_and_go_with_its_entries)
{
    auto& player = StartWithEntries(2, kPlayNormal, kNoRepeat);
    player.RunCommand("Remove");
    EXPECT_TRUE(IsEnabled("RemoveAll"));
    player.Entries().List().SetSelectedItem(0);
    player.RunCommand("Remove");
    EXPECT_EQ(player.Entries().Count(), 0);
    EXPECT_TRUE(IsEnabled("Remove"));
    for (const auto* const key : { "RemoveAll", "Next", "Previous" })
        EXPECT_FALSE(IsEnabled(key)) << key;
    Run("Stop");
    player.RunCommand("PlayPause");
    EXPECT_FALSE(IsEnabled("Stop"));
    world.dialogs.Choose({}); // cancelled
    EXPECT_TRUE(IsEnabled("Stop"));

    const auto played = Starts();
    player.RunCommand("AddVideoFile");
    world.dialogs.Choose({ std::string("/clips\0c.avi\0d.avi", 18) });
    EXPECT_FALSE(IsEnabled("Next"));
    world.Settle();
    EXPECT_EQ(player.Entries().List().SelectedItem(), 0);
    EXPECT_EQ(Starts(), played);
    for (const auto* const key : { "Remove", "RemoveAll", "Next", "Previous" })
        EXPECT_TRUE(IsEnabled(key)) << key;
    player.RunCommand("RemoveAll");
    EXPECT_EQ(player.Entries().Count(), 0);
    EXPECT_FALSE(IsEnabled("RemoveAll"));
}

TEST_F(PlayerTest, dialogs_are_never_under_a_window_that_stays_on_top)
{
    Store([](PlayerSettings& settings) { settings.AlwaysOnTop = settings.ShowInTray = -1; });
    auto& window = Start().Window();
    EXPECT_TRUE(window.IsTopmost() && window.HasTrayIcon());
    for (const auto* const key : { "Options", "About", "HelpTopics" })
        world.player->RunCommand(key);
    EXPECT_EQ(world.dialogs.log.str(), "options about help ");
    EXPECT_FALSE(window.IsTopmost());
    const auto shown = PagesOf(world.player->Settings());
    world.player->CommitOptions(shown, shown);
    EXPECT_FALSE(window.IsTopmost());
    window.DialogClosed();
    EXPECT_TRUE(window.IsTopmost());
    world.player->Unload();
    EXPECT_FALSE(window.HasTrayIcon());
}

TEST_F(PlayerTest, keys_without_a_command_do_nothing)
{
    auto& player = StartWithEntries(1, kPlayNormal, kNoRepeat);
    for (const auto* const key : { "Stop", "", "exit", "File", "AfterPlay", "DVDList", "DVDList0", "History",
             "History1", "History11", "Stop", "FullScreen", "Play" })
        player.RunCommand(key);
    EXPECT_FALSE(world.dialogs.asked || world.window.closes || world.window.isFullScreen);
    EXPECT_EQ(Starts(), 1u);
}

TEST_F(PlayerTest, what_was_played_can_be_played_again_after_a_restart)
{
    auto& files = Start().Files();
    files.LoadThumb("A & a", "/a.avi", false, true);
    files.LoadThumb("B", "/b.avi", false, true);
    world.Settle();
    Start();
    trace.played.clear();
    EXPECT_TRUE(IsEnabled("History0"));
    world.player->RunCommand("History1");
    world.Settle();
    EXPECT_EQ(world.player->Entries().EntryAt(0)->Title, "B");
    ClickClassicItem(*world.player, *world.player->BothMenus().frmMenu.Find("mnuRecent", 0));
    world.Settle();
    EXPECT_EQ(world.player->Entries().EntryAt(1)->Title, "A & a");
    // One that is in the list already plays the list's last entry.
    world.player->RunCommand("History1");
    world.dialogs.CloseBox();
    EXPECT_EQ(trace.played, (std::vector<std::string>{ "/b.avi", "/a.avi", "/a.avi" }));
}

TEST_F(PlayerTest, classic_menus_do_the_same_and_take_the_states_when_they_open)
{
    auto& player = StartWithEntries(3, kPlayNormal, kNoRepeat);
    auto& menus = player.BothMenus().frmMenu;
    const auto click = [&](const char* name, int index = 0) { ClickClassicItem(player, *menus.Find(name, index)); };
    for (const auto* const name : { "mnuNext", "mnuPrev", "mnufullscreen", "mnuPBShuffle", "mnuRMRepeatAll" })
        click(name);
    click("mnuAfterPlaying", 2);
    EXPECT_EQ(trace.played, (std::vector<std::string>{ "/a.avi", "/b.avi", "/a.avi" }));
    EXPECT_TRUE(world.window.isFullScreen);
    EXPECT_EQ(Checked(kPlayModeKeys) + Checked(kRepeatModeKeys) + Checked(kAfterPlayKeys),
        "PMShuffle RMRepeatAll RestartTheComputer ");
    for (const auto* const key : { "PMContinuous", "RMSingleRepeat", "ExitZentaro" })
        player.RunCommand(key);
    OpenClassicMenu(player, "mnuPlayBackMenu");
    std::string checked;
    for (const auto& item : menus.Items())
        checked += item.checked ? item.name + std::to_string(item.index) + " " : "";
    EXPECT_EQ(checked, "mnuPBCont0 mnuRMSingleRepeat0 mnuAfterPlaying1 ");
    EXPECT_TRUE(menus.Find("mnuincspeed")->enabled && menus.Find("mnustop")->enabled);
    click("mnustop");
    EXPECT_FALSE(IsLoaded());
    click("mnuplay");
    click("mnuPlayListRemove");
    EXPECT_EQ(player.Entries().Count(), 2);
    click("mnuPlayListRemoveAll");
    EXPECT_TRUE(IsEnabled("RemoveAll")); // the other tree's items are left alone
    Run("Stop");
    OpenClassicMenu(player, "mnuPlayListmenu");
    for (const auto* const name :
        { "mnuincspeed", "mnudecSpeed", "mnuresSpeed", "mnustop", "mnuNext", "mnuPrev", "mnuPlayListRemoveAll" })
        EXPECT_FALSE(menus.Find(name)->enabled) << name;
    OpenClassicMenu(player, "mnuOpenDVD");
    EXPECT_EQ(world.driveQuestions, 1);
    click("dvdsList");
    click("mnuPlayListAdd");
    world.dialogs.Choose({ "/added.avi" });
    world.Settle();
    click("mnuplay");
    EXPECT_EQ(LastPlayed(), "/added.avi");
}

TEST_F(PlayerTest, keys_seek_and_turn_the_volume_and_space_starts_what_is_not_loaded)
{
    auto& player = StartWithEntries(2, kPlayNormal, kNoRepeat);
    trace.length = 100'000;
    trace.time = 50'000;
    for (const auto& [command, time] :
        { std::pair("SeekForward", 55'000), { "SeekFarBack", 25'000 }, { "JumpToTenth", 90'000 } }) {
        Run(command, 9);
        EXPECT_NEAR(trace.time, time, 1);
    }
    Run("SeekFarForward"); // and not past the end
    EXPECT_LT(trace.time, trace.length);
    Run("Quieter");
    EXPECT_EQ(trace.volume, 95);
    Run("Louder");
    EXPECT_EQ(player.State().volume, 100);
    Run("PlayOrPause");
    EXPECT_EQ(trace.state, Engine::kPaused);
    Run("Stop");
    player.Entries().List().SetSelectedItem(1);
    Run("PlayOrPause");
    EXPECT_EQ(LastPlayed(), "/b.avi");
    Run("Stop");
    player.Entries().List().SetSelectedItem(1);
    Run("Remove"); // leaves the selection behind the last entry
    Run("PlayOrPause");
    EXPECT_EQ(LastPlayed(), "/a.avi");
    Run("PlayList");
    EXPECT_EQ(player.Window().Dock(), PlaylistDock::Hidden);
    player.Window().DockPlaylist(PlaylistDock::Top);
    EXPECT_EQ(player.Settings().PlaylistPosition, 2);
    player.Sequence().ListDoubleClicked();
    EXPECT_EQ(player.Window().Dock(), PlaylistDock::Hidden);
    Run("PlayList");
    EXPECT_EQ(player.Window().Dock(), PlaylistDock::Top);
}
