#include "tests/desktop/PlayerDesk.h"

#include <csignal>

namespace zentaro::trial {
namespace {

class MainWindow : public PlayerDesk {
protected:
    ShownPlayer ShowPlaying() const
    {
        auto player = StartAndShow({ Clips::Make("clip.mp4") });
        EXPECT_TRUE(player.PictureMoves());
        return player;
    }
    static bool TakesPlace(const ShownPlayer& player, const Rect& place)
    {
        return WaitUntil([&] { return player.Place() == place; });
    }
    static void DoubleClickTitleBar(const ShownPlayer& player)
    {
        const auto place = player.Place();
        Screen().DoubleClick(place.left + place.width / 2, place.top + 15);
    }
    static void DoubleClickVideo(const ShownPlayer& player)
    {
        const auto video = player.Video();
        Screen().DoubleClick(video.left + video.width / 2, video.top + video.height / 2);
    }
};

TEST_F(MainWindow, IsMovedByItsTitleBarAndResizedAtItsEdges)
{
    auto player = ShowPlaying();
    auto before = player.Place();
    // The first pixels of a drag only tell it from a click.
    const auto moves = [](int by, int drag) {
        return drag == 0 ? by == 0
                         : by * drag > 0 && std::abs(by) > std::abs(drag) - 16 && std::abs(by) <= std::abs(drag);
    };
    EXPECT_TRUE(
        Screen().DragWindow(player.window, before.left + 150, before.top + 15, before.left + 30, before.top + 75, [&] {
            const auto now = player.Place();
            return moves(now.left - before.left, -120) && moves(now.top - before.top, 60) && now.width == before.width
                && now.height == before.height;
        }));
    for (int side = 0; side < 9; ++side) {
        const int horizontal = side % 3 - 1;
        const int vertical = side / 3 - 1;
        if (side == 4)
            continue;
        SCOPED_TRACE(std::to_string(horizontal) + ", " + std::to_string(vertical));
        before = player.Place();
        const auto edge = [](int at, int start, int size) {
            return at < 0 ? start + 3 : at > 0 ? start + size - 3 : start + size / 2;
        };
        const int x = edge(horizontal, before.left, before.width);
        const int y = edge(vertical, before.top, before.height);
        EXPECT_TRUE(Screen().DragWindow(player.window, x, y, x + 60 * horizontal, y + 20 * vertical, [&] {
            const auto now = player.Place();
            return moves(now.width - before.width, 60 * std::abs(horizontal))
                && moves(now.height - before.height, 20 * std::abs(vertical))
                && (horizontal < 0 ? now.Right() == before.Right() : now.left == before.left)
                && (vertical < 0 ? now.Bottom() == before.Bottom() : now.top == before.top);
        }));
    }
    before = player.Place();
    EXPECT_TRUE(
        Screen().DragWindow(player.window, before.left + 3, before.top + 200, before.left + 500, before.top + 200, [&] {
            return player.Place().width == WindowLayout::kMinimumWidth && player.Place().Right() == before.Right();
        }));
    EXPECT_TRUE(player.PictureMoves());
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(MainWindow, FullScreenAndMaximisingLeaveTheWindowAsItWas)
{
    auto player = ShowPlaying();
    const auto before = player.Place();
    DoubleClickVideo(player);
    EXPECT_TRUE(WaitUntil([&] { return player.Video() == Screen().Area(); }));
    EXPECT_TRUE(player.PictureMoves());
    // Else panels would lie over the video.
    EXPECT_TRUE(Screen().HasState(player.window, "_NET_WM_STATE_FULLSCREEN"));
    Screen().Press("Escape");
    EXPECT_TRUE(TakesPlace(player, before));
    EXPECT_TRUE(player.PictureMoves());

    // From a maximised window back to it.
    DoubleClickTitleBar(player);
    EXPECT_TRUE(WaitUntil([&] { return player.Place() == Screen().Area() && player.Video().top > 0; }));
    DoubleClickVideo(player);
    EXPECT_TRUE(WaitUntil([&] { return player.Video() == Screen().Area(); }));
    DoubleClickVideo(player);
    EXPECT_TRUE(WaitUntil([&] { return player.Video().top > 0; }));
    EXPECT_EQ(player.Place(), Screen().Area());
    DoubleClickTitleBar(player);
    EXPECT_TRUE(TakesPlace(player, before));
    player.Click(Button::Maximize);
    EXPECT_TRUE(TakesPlace(player, Screen().Area()));
    player.Click(Button::Maximize);
    EXPECT_TRUE(TakesPlace(player, before));
    player.Click(Button::Close);
    EXPECT_ENDED_CLEANLY(player);
}

TEST_F(MainWindow, PlaysWithoutAWindowManager)
{
    Desktop bare(800, 600, Desktop::WindowManager::None);
    auto player = Show(Start({ Clips::Make("clip.mp4") }, ".", { "DISPLAY=" + bare.Name() }), bare);
    EXPECT_TRUE(player.PictureMoves());
    const auto before = player.Place();
    const auto video = player.Video();
    bare.DoubleClick(video.left + video.width / 2, video.top + video.height / 2);
    EXPECT_TRUE(WaitUntil([&] { return player.Video() == bare.Area(); }));
    EXPECT_TRUE(player.PictureMoves());
    bare.DoubleClick(400, 300);
    EXPECT_TRUE(TakesPlace(player, before));
    player.process.Signal(SIGTERM);
    EXPECT_ENDED_CLEANLY(player);
}

TEST_F(MainWindow, KeepsItsPartsAndDialogsInSightOnASmallScreen)
{
    StoreSettings([](PlayerSettings& settings) { settings.PlaylistPosition = 2; }); // above the video
    Desktop small(480, 320);
    auto player = Show(Start({ Clips::Make("clip.mp4") }, ".", { "DISPLAY=" + small.Name() }), small);
    const auto isInSight = [&small](const Rect& place) {
        return place.width > 0 && SharedArea(place, small.Area()) == 1LL * place.width * place.height;
    };
    EXPECT_TRUE(player.PictureMoves());
    EXPECT_TRUE(isInSight(player.Place()));
    EXPECT_LE(player.Video().Bottom(), player.OnScreen(player.Layout().Panel()).top);
    for (const auto* const menu : { "alt+t", "alt+h" }) {
        small.Activate(player.window);
        small.Press(menu);
        EXPECT_TRUE(player.WaitForMenus(1));
        small.Press("Return");
        EXPECT_TRUE(player.WaitForDialogs(1));
        EXPECT_TRUE(isInSight(small.Place(player.Dialogs().at(0)))) << menu;
        small.Press("Escape");
        EXPECT_TRUE(player.WaitForDialogs(0));
    }
    EXPECT_CLOSES_CLEANLY(player);
}

} // namespace
} // namespace zentaro::trial
