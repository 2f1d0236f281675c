#include "tests/desktop/PlayerDesk.h"

namespace zentaro::desktop {
namespace {

class MainWindow : public PlayerDesk {
protected:
    ShownPlayer ShowPlaying()
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
};

TEST_F(MainWindow, IsMovedByItsTitleBarAndResizedAtItsEdges)
{
    auto player = ShowPlaying();
    auto before = player.Place();
    Screen().Drag(before.left + 150, before.top + 15, before.left + 30, before.top + 75);
    // The first pixels of a drag only tell it from a click.
    EXPECT_TRUE(WaitUntil([&] {
        const auto now = player.Place();
        return std::abs(now.left - before.left + 120) <= 16 && std::abs(now.top - before.top - 60) <= 16;
    }));
    EXPECT_EQ(player.Place().width, before.width);
    EXPECT_EQ(player.Place().height, before.height);

    for (const int horizontal : { -1, 0, 1 }) {
        for (const int vertical : { -1, 0, 1 }) {
            if (horizontal == 0 && vertical == 0)
                continue;
            SCOPED_TRACE(std::to_string(horizontal) + ", " + std::to_string(vertical));
            // The window manager finishes the drag before after the hand has.
            std::this_thread::sleep_for(200ms);
            before = player.Place();
            const auto edge = [](int side, int start, int size) {
                return side < 0 ? start + 3 : side > 0 ? start + size - 3 : start + size / 2;
            };
            const int x = edge(horizontal, before.left, before.width);
            const int y = edge(vertical, before.top, before.height);
            Screen().Drag(x, y, x + 60 * horizontal, y + 20 * vertical);
            const auto grows = [](int side, int by, int drag) {
                return side == 0 ? by == 0 : by > drag - 16 && by <= drag;
            };
            EXPECT_TRUE(WaitUntil([&] {
                const auto now = player.Place();
                return grows(horizontal, now.width - before.width, 60)
                    && grows(vertical, now.height - before.height, 20);
            }));
            EXPECT_EQ(horizontal < 0 ? player.Place().Right() : player.Place().left,
                horizontal < 0 ? before.Right() : before.left);
            EXPECT_EQ(vertical < 0 ? player.Place().Bottom() : player.Place().top,
                vertical < 0 ? before.Bottom() : before.top);
        }
    }
    EXPECT_TRUE(player.PictureMoves());

    before = player.Place();
    Screen().Drag(before.left + 3, before.top + 200, before.left + 500, before.top + 200);
    EXPECT_TRUE(WaitUntil([&] { return player.Place().width == WindowLayout::kMinimumWidth; }));
    EXPECT_EQ(player.Place().Right(), before.Right());
    EXPECT_TRUE(player.PictureMoves());
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(MainWindow, MaximisesAndComesBack)
{
    auto player = ShowPlaying();
    const auto before = player.Place();
    DoubleClickTitleBar(player);
    EXPECT_TRUE(TakesPlace(player, Screen().Area()));
    EXPECT_TRUE(player.PictureMoves());
    DoubleClickTitleBar(player);
    EXPECT_TRUE(TakesPlace(player, before));

    const auto maximise = player.OnScreen(player.Layout().ButtonRect(Button::Maximize));
    Screen().Click(maximise.left + 10, maximise.top + 10);
    EXPECT_TRUE(TakesPlace(player, Screen().Area()));
    const auto restore = player.OnScreen(player.Layout().ButtonRect(Button::Maximize));
    Screen().Click(restore.left + 10, restore.top + 10);
    EXPECT_TRUE(TakesPlace(player, before));

    const auto close = player.OnScreen(player.Layout().ButtonRect(Button::Close));
    Screen().Click(close.left + 10, close.top + 10);
    EXPECT_EQ(player.process.WaitForEnd(), 0);
}

TEST_F(MainWindow, FullScreenComesByADoubleClickAndLeavesTheWindowAsItWas)
{
    auto player = ShowPlaying();
    const auto before = player.Place();
    const auto doubleClickVideo = [&] {
        const auto video = player.Video();
        Screen().DoubleClick(video.left + video.width / 2, video.top + video.height / 2);
    };
    doubleClickVideo();
    EXPECT_TRUE(TakesPlace(player, Screen().Area()));
    EXPECT_TRUE(WaitUntil([&] { return player.Video() == Screen().Area(); }));
    EXPECT_TRUE(player.PictureMoves());
    // Else panels would lie over the video.
    EXPECT_TRUE(Screen().HasState(player.window, "_NET_WM_STATE_FULLSCREEN"));
    Screen().Press(kEscape);
    EXPECT_TRUE(TakesPlace(player, before));
    EXPECT_TRUE(player.PictureMoves());

    // From a maximised window back to it.
    DoubleClickTitleBar(player);
    EXPECT_TRUE(TakesPlace(player, Screen().Area()));
    EXPECT_TRUE(WaitUntil([&] { return player.Video().top > 0; }));
    doubleClickVideo();
    EXPECT_TRUE(WaitUntil([&] { return player.Video() == Screen().Area(); }));
    doubleClickVideo();
    EXPECT_TRUE(WaitUntil([&] { return player.Video().top > 0; }));
    EXPECT_EQ(player.Place(), Screen().Area());
    DoubleClickTitleBar(player);
    EXPECT_TRUE(TakesPlace(player, before));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(MainWindow, PlaysWithoutAWindowManager)
{
    Desktop bare(800, 600, Desktop::WindowManager::None);
    auto player = Show(Start({ Clips::Make("clip.mp4") }, {}, { { "DISPLAY", bare.Name() } }), &bare);
    EXPECT_TRUE(player.PictureMoves());
    const auto before = player.Place();
    const auto video = player.Video();
    bare.DoubleClick(video.left + video.width / 2, video.top + video.height / 2);
    EXPECT_TRUE(WaitUntil([&] { return player.Video() == bare.Area(); }));
    EXPECT_TRUE(player.PictureMoves());
    bare.DoubleClick(400, 300);
    EXPECT_TRUE(WaitUntil([&] { return player.Place() == before; }));
    player.process.Signal(SIGTERM);
    EXPECT_EQ(player.process.WaitForEnd(), 0);
    EXPECT_EQ(player.process.ErrorText(), "");
}

} // namespace
} // namespace zentaro::desktop
