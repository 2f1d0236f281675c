#include "tests/desktop/PlayerDesk.h"
#include "tests/desktop/TitleLog.h"
#include "tests/desktop/TrayHost.h"

#include <algorithm>

namespace zentaro::desktop {
namespace {

class Menus : public PlayerDesk {
protected:
    /// Menus that are open, the last one opened last.
    static std::vector<Window> Open(const ShownPlayer& player)
    {
        const auto id = static_cast<std::uint32_t>(player.process.Id());
        auto windows = Screen().ShownChildren(Screen().Root());
        std::erase_if(windows, [&](Window window) {
            const auto types = Screen().Numbers(window, "_NET_WM_WINDOW_TYPE");
            const auto tip = Screen().Atom("_NET_WM_WINDOW_TYPE_TOOLTIP");
            return Screen().Numbers(window, "_NET_WM_PID") != std::vector{ id }
            || std::find(types.begin(), types.end(), tip) != types.end();
        });
        return windows;
    }
    static bool OpenCount(const ShownPlayer& player, std::size_t count)
    {
        return WaitUntil([&] { return Open(player).size() == count; }, 5s);
    }
    static void Press(std::initializer_list<std::uint32_t> keys)
    {
        for (const auto key : keys) {
            Screen().Press(key);
            std::this_thread::sleep_for(60ms);
        }
    }
    /// A click on the menu strip, so many pixels from its left.
    static void ClickStrip(const ShownPlayer& player, int x)
    {
        const auto strip = player.OnScreen(player.Layout().MenuStrip());
        Screen().Click(strip.left + x, strip.top + strip.height / 2);
    }
};

TEST_F(Menus, OpenByKeysAndMouseAndDoWhatTheySay)
{
    auto player = StartAndShow({ Clips::Make("clip.mp4") });
    EXPECT_TRUE(player.PictureMoves());
    Screen().Activate(player.window);
    // By access keys, without a mouse.
    Screen().Press('p', { kAlt });
    EXPECT_TRUE(OpenCount(player, 1));
    Press({ kDown, kDown, kRight }); // into the play modes
    EXPECT_TRUE(OpenCount(player, 2));
    Press({ 's' });
    EXPECT_TRUE(OpenCount(player, 0));
    // Walking along the strip, out again with Escape; the menu of the list has a letter of its own.
    Screen().Press(kF10);
    EXPECT_TRUE(OpenCount(player, 1));
    const auto first = Screen().Place(Open(player).back()).left;
    Press({ kLeft, kLeft, kLeft });
    EXPECT_TRUE(
        WaitUntil([&] { return Open(player).size() == 1 && Screen().Place(Open(player).back()).left > first; }));
    const auto third = Screen().Place(Open(player).back()).left;
    Press({ kEscape, kEscape });
    EXPECT_TRUE(OpenCount(player, 0));
    Screen().Press('l', { kAlt });
    EXPECT_TRUE(OpenCount(player, 1));
    EXPECT_EQ(Screen().Place(Open(player).back()).left, third);
    Press({ kEscape, kEscape });
    // The video's own: the list to the right.
    const auto video = player.Video();
    Screen().Click(video.left + video.width / 2, video.top + 40, 3);
    EXPECT_TRUE(OpenCount(player, 1));
    Press({ 'l' });
    EXPECT_TRUE(OpenCount(player, 2));
    Press({ kDown, kReturn });
    EXPECT_TRUE(WaitUntil([&] { return player.Video().left < video.left; }));
    // By mouse: the last entry of the first menu ends the program.
    ClickStrip(player, 20);
    EXPECT_TRUE(OpenCount(player, 1));
    const auto file = Screen().Place(Open(player).back());
    Screen().Click(file.left + 40, file.Bottom() - 12);
    EXPECT_EQ(player.process.WaitForEnd(), 0);
    EXPECT_EQ(StoredSettings().PlayMode, 2);
    EXPECT_EQ(StoredSettings().PlaylistPosition, 1);
}

TEST_F(Menus, RecentFilesComeBackAtTheNextStartWhateverTheirNames)
{
    const auto name = std::string("Salt & Pepper\n100% &x.mp4");
    const auto clip = CopyOf(Clips::Make("clip.mp4"), name);
    {
        auto player = StartAndShow({ clip });
        EXPECT_TRUE(player.PictureMoves());
        EXPECT_CLOSES_CLEANLY(player);
    }
    for (const bool isThere : { true, false }) {
        auto player = StartAndShow();
        Screen().Activate(player.window);
        Screen().Press('f', { kAlt });
        EXPECT_TRUE(OpenCount(player, 1));
        Press({ kDown, kRight });
        EXPECT_TRUE(OpenCount(player, 2));
        // One line, whatever the name holds.
        EXPECT_LT(Screen().Place(Open(player).back()).height, 40);
        Press({ kReturn });
        if (isThere) {
            EXPECT_TRUE(player.WaitForTitle("Salt & Pepper"));
            EXPECT_TRUE(player.PictureMoves());
            ASSERT_EQ(std::remove(clip.c_str()), 0);
        } else {
            EXPECT_TRUE(player.AnswerDialog());
        }
        EXPECT_CLOSES_CLEANLY(player);
    }
}

TEST_F(Menus, TheTrayIconOpensTheFileMenuAndNoTrayTakesNothingAway)
{
    StoreSettings([](PlayerSettings& settings) { settings.ShowInTray = -1; });
    auto player = StartAndShow({ Clips::Make("clip.mp4") });
    EXPECT_TRUE(player.PictureMoves());
    TrayHost panel(Screen());
    ASSERT_TRUE(panel.TakeIcon());
    const auto icon = panel.Icon();
    const auto x = icon.left + icon.width / 2;
    const auto y = icon.top + icon.height / 2;
    // The panel is grey, the icon is not.
    EXPECT_TRUE(WaitUntil([&] { return Screen().Grab(icon).Mean().red > Screen().Grab(icon).Mean().blue + 10; }));
    const auto place = player.Place();
    Screen().Click(x, y);
    Screen().Click(x, y, 2);
    Screen().DoubleClick(x, y);
    std::this_thread::sleep_for(300ms);
    EXPECT_TRUE(Open(player).empty());
    EXPECT_EQ(player.Place(), place);
    Screen().Click(x, y, 3);
    EXPECT_TRUE(OpenCount(player, 1));
    Press({ kUp, kReturn }); // the last one is Exit
    EXPECT_EQ(player.process.WaitForEnd(), 0);
    EXPECT_EQ(player.process.ErrorText(), "");
}

} // namespace
} // namespace zentaro::desktop
