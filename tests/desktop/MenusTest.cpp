#include "tests/desktop/PlayerDesk.h"

namespace zentaro::trial {
namespace {

class Menus : public PlayerDesk {
protected:
    /// Where the menu lies that was opened last.
    static Rect Last(const ShownPlayer& player)
    {
        const auto menus = Screen().MenusOf(player.process.Id());
        return menus.empty() ? Rect{} : Screen().Place(menus.back());
    }
    /// Presses a key after which so many menus are open.
    static void Press(const ShownPlayer& player, const std::string& keys, std::size_t menus)
    {
        Screen().Press(keys);
        EXPECT_TRUE(player.WaitForMenus(menus)) << keys;
    }
};

TEST_F(Menus, OpenByKeysAndMouseAndDoWhatTheySay)
{
    auto player = StartAndShow({ Clips::Make("clip.mp4") });
    EXPECT_TRUE(player.PictureMoves());
    Screen().Activate(player.window);
    // By access keys, without a mouse: into the play modes.
    Press(player, "alt+p", 1);
    Press(player, "Down Down Right", 2);
    Press(player, "s", 0);
    // Walking along the strip, out again with Escape; the menu of the list has a letter of its own.
    Press(player, "F10", 1);
    const auto first = Last(player).left;
    Screen().Press("Left Left Left Left");
    EXPECT_TRUE(WaitUntil([&] { return player.WaitForMenus(1) && Last(player).left > first; }));
    const auto third = Last(player).left;
    Press(player, "Escape Escape", 0);
    Press(player, "alt+l", 1);
    EXPECT_EQ(Last(player).left, third);
    Press(player, "Escape Escape", 0);
    // The video's own: the list to the right, and the video where the list was.
    const auto video = player.Video();
    Screen().Click(video.left + video.width / 2, video.top + 40, 3);
    EXPECT_TRUE(player.WaitForMenus(1));
    Press(player, "l", 2);
    Press(player, "Down Return", 0);
    EXPECT_TRUE(WaitUntil([&] { return player.Video().left < video.left && player.Video().width == video.width; }));
    EXPECT_TRUE(player.PictureMoves());
    // By mouse: the last entry of the first menu ends the program.
    const auto strip = player.OnScreen(player.Layout().MenuStrip());
    Screen().Click(strip.left + 20, strip.top + strip.height / 2);
    EXPECT_TRUE(player.WaitForMenus(1));
    Screen().Click(Last(player).left + 40, Last(player).Bottom() - 12);
    EXPECT_ENDED_CLEANLY(player);
    EXPECT_EQ(StoredSettings().PlayMode, 2);
    EXPECT_EQ(StoredSettings().PlaylistPosition, 1);
}

TEST_F(Menus, RecentFilesComeBackAtTheNextStartWhateverTheirNames)
{
    const auto clip = ClipNamed("Salt & Pepper\n100% &x.mp4");
    {
        auto player = StartAndShow({ clip });
        EXPECT_TRUE(player.PictureMoves());
        EXPECT_CLOSES_CLEANLY(player);
    }
    auto player = StartAndShow();
    Screen().Activate(player.window);
    Press(player, "alt+f", 1);
    Press(player, "Down Right", 2);
    // One line, whatever the name holds.
    EXPECT_LT(Last(player).height, 40);
    Press(player, "Return", 0);
    EXPECT_TRUE(player.WaitForTitle("Salt & Pepper"));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Menus, TheTrayIconOpensTheFileMenuAndNoTrayTakesNothingAway)
{
    StoreSettings([](PlayerSettings& settings) { settings.ShowInTray = -1; });
    auto player = StartAndShow({ Clips::Make("clip.mp4") });
    EXPECT_TRUE(player.PictureMoves());
    const auto icon = Screen().Place(Screen().TakeTrayIcon());
    ASSERT_GT(icon.width, 0);
    // The panel is grey, the icon is not.
    EXPECT_TRUE(WaitUntil([&] { return MeanOf(Screen().Grab(icon)).red() > MeanOf(Screen().Grab(icon)).blue() + 10; }));
    const auto place = player.Place();
    const auto x = icon.left + icon.width / 2;
    const auto y = icon.top + icon.height / 2;
    Screen().Click(x, y, 2);
    Screen().DoubleClick(x, y);
    Screen().Click(x, y, 3);
    EXPECT_TRUE(player.WaitForMenus(1));
    EXPECT_EQ(player.Place(), place);
    Press(player, "Up Return", 0); // the last one is Exit
    EXPECT_ENDED_CLEANLY(player);
}

} // namespace
} // namespace zentaro::trial
