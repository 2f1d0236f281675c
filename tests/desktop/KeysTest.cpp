#include "tests/desktop/PlayerDesk.h"

#include <algorithm>

namespace zentaro::trial {
namespace {

/// The player in the hands of somebody without a mouse.
class Keys : public PlayerDesk {
protected:
    static bool WaitForFullScreen(const ShownPlayer& player, bool fills)
    {
        return WaitUntil([&] { return player.Video().width > 0 && (player.Video() == Screen().Area()) == fills; });
    }
    bool ShowsWindow(const ShownPlayer& player, const std::string& title) const
    {
        return WaitUntil([&] {
            const auto windows = Screen().WindowsOf(player.process.Id());
            return std::ranges::any_of(
                windows, [&](Window window) { return Screen().Title(window).find(title) != std::string::npos; });
        });
    }
};

TEST_F(Keys, OpenTheMenusOfVideoAndListFromAFreshStart)
{
    auto player = StartAndShow();
    for (const auto* const key : { "Menu", "shift+F10" }) {
        Screen().Press(key);
        EXPECT_TRUE(player.WaitForMenus(1)) << key;
        Screen().Press("Escape");
        EXPECT_TRUE(player.WaitForMenus(0));
    }
    // The list is the next part; its menu is another: its second entry removes nothing from an empty list.
    Screen().Press("F6");
    Screen().Press("shift+F10");
    EXPECT_TRUE(player.WaitForMenus(1));
    Screen().Press("Return");
    EXPECT_TRUE(player.WaitForDialogs(1)); // "Add Media File(s)..."
    Screen().Press("Escape");
    EXPECT_TRUE(player.WaitForDialogs(0));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Keys, EnterAndDeleteMeanTheListOnlyWhereItHasTheFocus)
{
    auto player = StartAndShow({ ClipNamed("a.mp4") });
    EXPECT_TRUE(player.PictureMoves());
    Screen().Activate(player.window);
    Screen().Press("Return");
    EXPECT_TRUE(WaitForFullScreen(player, true));
    Screen().Press("Delete");
    Screen().Press("Return");
    EXPECT_TRUE(WaitForFullScreen(player, false));
    EXPECT_TRUE(player.WaitForTitle("a.mp4"));
    // Enter on a button presses it: the first of the controls plays, the next one pauses.
    Screen().Press("F6 F6 Tab");
    Screen().Press("Return");
    EXPECT_TRUE(player.PictureStands());
    Screen().Press("Return");
    EXPECT_TRUE(player.PictureMoves());
    // In the list it is the entry that goes.
    Screen().Press("shift+F6 Delete");
    Screen().Press("ctrl+s");
    Screen().Press("ctrl+p"); // with an empty list it asks for files
    EXPECT_TRUE(player.WaitForDialogs(1));
    Screen().Press("Escape");
    EXPECT_TRUE(player.WaitForDialogs(0));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Keys, FindAndRunACommandByItsWords)
{
    auto player = StartAndShow();
    Screen().Press("ctrl+shift+p");
    EXPECT_TRUE(ShowsWindow(player, "Find a Command"));
    Screen().Type("about");
    Screen().Press("Return");
    EXPECT_TRUE(ShowsWindow(player, "About Zentaro"));
    Screen().Press("Escape");
    EXPECT_TRUE(player.WaitForDialogs(0));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Keys, TakeTheWayThatWasChosenForThem)
{
    WriteWholeFile(InHome("program/Own.cfg"), "zentaro own settings 1\nkeys.About=Ctrl+J\nkeys.Exit=Ctrl+K\nend\n");
    auto player = StartAndShow();
    Screen().Press("shift+F1 ctrl+j");
    EXPECT_TRUE(ShowsWindow(player, "About Zentaro"));
    Screen().Press("Escape");
    EXPECT_TRUE(player.WaitForDialogs(0));
    Screen().Press("ctrl+k");
    EXPECT_ENDED_CLEANLY(player);
}

} // namespace
} // namespace zentaro::trial
