#include "tests/desktop/PlayerDesk.h"

#include <filesystem>

namespace zentaro::trial {
namespace {

namespace fs = std::filesystem;

/// Files that come from a file manager's window.
class List : public PlayerDesk {
protected:
    std::string ShortClip(const std::string& name) const { return CopyOf(Clips::Make("short.mp4", 2), name); }

    static Rect ContentOf(const ShownPlayer& player) { return player.OnScreen(player.Layout().Content()); }
    static bool DropOnVideo(const ShownPlayer& player, const std::vector<std::string>& paths)
    {
        const auto content = ContentOf(player);
        return Screen().DropFiles(content.Right() - 60, content.top + 60, paths);
    }
    /// A row has left the plain ground of the empty list.
    static bool ShowsRow(const ShownPlayer& player, int row)
    {
        const auto content = ContentOf(player);
        return MeanOf(Screen().Grab({ content.left + 12, content.top + 80 * row + 12, 56, 56 })).value() > 60;
    }
};

TEST_F(List, ClipsDroppedOnTheVideoPlayOneAfterTheOtherToTheEnd)
{
    StoreSettings([](PlayerSettings& settings) { settings.RepeatMode = 0; });
    auto player = StartAndShow();
    const auto stop = player.PlaceOf(Button::Stop);
    ASSERT_TRUE(
        DropOnVideo(player, { ShortClip("a.mp4"), InHome("notes.txt"), ShortClip("b.mp4"), ShortClip("c.mp4") }));
    for (const auto* const name : { "a.mp4", "b.mp4", "c.mp4" })
        EXPECT_TRUE(player.WaitForTitle(name));
    const auto playing = Screen().Grab(stop);
    EXPECT_TRUE(ShowsRow(player, 0) && ShowsRow(player, 1) && ShowsRow(player, 2));
    // After the last one nothing follows.
    EXPECT_TRUE(WaitUntil([&] { return Screen().Grab(stop) != playing; }));
    EXPECT_TRUE(player.WaitForTitle("c.mp4"));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(List, ClipsDroppedOnTheListStartNothingUntilOneIsChosen)
{
    auto player = StartAndShow();
    const auto content = ContentOf(player);
    ShortClip("films/film 10.mp4");
    ShortClip("films/film 9.mp4");
    ShortClip("films/more/last.mp4");
    ASSERT_TRUE(Screen().DropFiles(content.left + 60, content.Bottom() - 60, { InHome("films") }));
    EXPECT_TRUE(WaitUntil([&] { return ShowsRow(player, 2); }));
    EXPECT_EQ(player.Title(), "Zentaro");

    // The second row, by a double click, which also hides the list.
    Screen().DoubleClick(content.left + 100, content.top + 120);
    EXPECT_TRUE(player.WaitForTitle("film 10.mp4"));
    EXPECT_TRUE(WaitUntil([&] { return player.Video().width > content.width - 20; }));
    EXPECT_TRUE(player.WaitForTitle("last.mp4"));
    EXPECT_TRUE(player.WaitForTitle("film 9.mp4")); // round again
    player.Click(Button::PlayList);
    EXPECT_TRUE(WaitUntil([&] { return player.Video().width < content.width - 20; }));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(List, WhatIsPausedBearsTheSignOfItInWindowListAndTaskbar)
{
    auto player = StartAndShow({ Clips::Make("clip.mp4") });
    EXPECT_TRUE(WaitUntil([&] { return ShowsRow(player, 0); }));
    Screen().Activate(player.window);
    const auto window = player.Place();
    const auto content = ContentOf(player);
    const Rect icon{ window.left, window.top, 30, 30 };
    // The thumbnail itself may become another one at any time.
    const auto isOnThumbnail = [&] {
        const auto thumbnail = Screen().Grab({ content.left + 12, content.top + 12, 56, 56 });
        int dots = 0;
        for (int y = 0; y < thumbnail.height(); ++y) {
            for (int x = 0; x < thumbnail.width(); ++x)
                dots += thumbnail.pixelColor(x, y) == QColor(0xFF, 0xB0, 0x20) ? 1 : 0;
        }
        return dots > 10;
    };
    const auto taskbar = [&] { return Screen().Numbers(player.window, "_NET_WM_ICON"); };
    const auto plainIcon = SettledLook(icon);
    const auto plainTaskbar = taskbar();
    EXPECT_FALSE(isOnThumbnail());
    Screen().Press("ctrl+p");
    EXPECT_TRUE(WaitUntil([&] { return Screen().Grab(icon) != plainIcon; }));
    EXPECT_TRUE(WaitUntil([&] { return taskbar() != plainTaskbar; }));
    EXPECT_TRUE(WaitUntil(isOnThumbnail));
    Screen().Press("space");
    EXPECT_TRUE(
        WaitUntil([&] { return Screen().Grab(icon) == plainIcon && taskbar() == plainTaskbar && !isOnThumbnail(); }));
    EXPECT_CLOSES_CLEANLY(player);
}

} // namespace
} // namespace zentaro::trial
