#include "tests/desktop/PlayerDesk.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>

namespace zentaro::trial {
namespace {

namespace fs = std::filesystem;

class Controls : public PlayerDesk {
protected:
    /// The middle of a button and a little around it; `scale`: screen pixels for each of the window's own.
    static Rect MiddleOf(const ShownPlayer& player, Button button, double scale = 1)
    {
        const auto place = player.Place();
        const auto own = [&](int pixels) { return static_cast<int>(std::lround(pixels / scale)); };
        const auto rect = WindowLayout(own(place.width), own(place.height)).ButtonRect(button);
        const auto onScreen = [&](double pixels) { return static_cast<int>(pixels * scale); };
        return { place.left + onScreen(rect.left + rect.width / 2.0) - 5,
            place.top + onScreen(rect.top + rect.height / 2.0) - 5, 11, 11 };
    }
    /// Waits until this part of the screen looks other than that, and stays so: what it looks like.
    static QImage NewLook(const Rect& part, const QImage& old)
    {
        QImage look;
        EXPECT_TRUE(WaitUntil([&] {
            const auto before = std::exchange(look, Screen().Grab(part));
            return look != old && look == before;
        }));
        return look;
    }
    /// A button that can be pressed looks otherwise under the pointer and when held; what leaves it is no press.
    static void ExpectReacts(const ShownPlayer& player, Button button, double scale = 1)
    {
        SCOPED_TRACE(static_cast<int>(button));
        const auto middle = MiddleOf(player, button, scale);
        const auto normal = Screen().Grab(middle);
        Screen().MoveTo(middle.left + 5, middle.top + 5);
        const auto over = NewLook(middle, normal);
        Screen().Hold(middle.left + 5, middle.top + 5);
        EXPECT_NE(NewLook(middle, over), normal);
        Screen().MoveTo(0, 0);
        EXPECT_TRUE(WaitUntil([&] { return Screen().Grab(middle) == normal; }));
        Screen().Release();
    }
    /// The note over the video; empty when there is none.
    static Rect Note(const ShownPlayer& player)
    {
        const auto video = player.Video();
        for (const auto window : Screen().Children(player.window)) {
            const auto place = Screen().Place(window);
            if (place.left == video.left + 12 && place.top == video.top + 12)
                return place;
        }
        return {};
    }
    /// Whether the bar lies over the lower edge of the screen.
    static bool ShowsBar(const ShownPlayer& player)
    {
        const auto area = Screen().Area();
        const Rect bar{ 0, area.height - BarLayout::kHeight, area.width, BarLayout::kHeight };
        const auto covers = Screen().Children(player.window);
        return std::any_of(covers.begin(), covers.end(), [&](Window window) { return Screen().Place(window) == bar; });
    }
};

TEST_F(Controls, EveryButtonShowsItsStatesAndAPressThatLeavesDoesNothing)
{
    auto player = StartAndShow();
    std::map<Button, QImage> disabled;
    for (const auto button : { Button::Pause, Button::Stop, Button::FastForward, Button::Rewind, Button::Next,
             Button::Previous, Button::FullScreen, Button::Snapshot })
        disabled[button] = SettledLook(MiddleOf(player, button));
    EXPECT_EQ(Start({ Clips::Make("clip.mp4") }).WaitForEnd(), 0);
    EXPECT_TRUE(player.PictureMoves());
    Screen().Activate(player.window);
    const auto before = player.Place();
    for (const auto& [button, look] : disabled) {
        NewLook(MiddleOf(player, button), look);
        ExpectReacts(player, button);
    }
    for (const auto button : { Button::Play, Button::PlayList, Button::Open, Button::SoundOn, Button::Minimize,
             Button::Maximize, Button::Close })
        ExpectReacts(player, button);
    EXPECT_TRUE(player.PictureMoves());
    EXPECT_TRUE(player.Dialogs().empty());
    EXPECT_EQ(player.Place(), before);
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Controls, StayInPlaceAtEveryScaleFactor)
{
    for (const double scale : { 1.5, 2.0 }) {
        SCOPED_TRACE(scale);
        auto player = Show(Start({ Clips::Make("clip.mp4") }, ".", { "QT_SCALE_FACTOR=" + std::to_string(scale) }));
        EXPECT_TRUE(player.PictureMoves());
        const auto before = player.Place();
        EXPECT_EQ(before.width, WindowLayout::kFirstWidth * scale);
        EXPECT_GE(before.top, 0);
        for (const auto button : { Button::Close, Button::Play, Button::PlayList, Button::SoundOn, Button::Snapshot })
            ExpectReacts(player, button, scale);
        const auto middle = MiddleOf(player, Button::FullScreen, scale);
        Screen().Click(middle.left, middle.top);
        EXPECT_TRUE(WaitUntil([&] { return player.Video() == Screen().Area(); }));
        Screen().Press("f");
        EXPECT_TRUE(WaitUntil([&] { return player.Place() == before; }));
        EXPECT_CLOSES_CLEANLY(player);
    }
}

TEST_F(Controls, TheListLiesWhereTheSettingSaysAndHides)
{
    constexpr int kAtLeast = 90; // px
    for (int position = 0; position < 5; ++position) {
        SCOPED_TRACE(position);
        StoreSettings([&](PlayerSettings& settings) { settings.PlaylistPosition = position; });
        auto player = StartAndShow({ Clips::Make("clip.mp4") });
        EXPECT_TRUE(player.WaitForTitle("clip.mp4"));
        const auto content = player.OnScreen(player.Layout().Content());
        const auto isDocked = [&] {
            const auto video = player.Video();
            const int rooms[] = { video.left - content.left, content.Right() - video.Right(), video.top - content.top,
                content.Bottom() - video.Bottom() };
            if (position == 4)
                return video.width == 0;
            return rooms[position] >= kAtLeast && std::count(rooms, rooms + 4, 0) == 3;
        };
        // A film comes forward from behind a list that takes the whole window.
        if (position < 4) {
            EXPECT_TRUE(WaitUntil(isDocked));
            player.Click(Button::PlayList);
        }
        EXPECT_TRUE(WaitUntil([&] { return player.Video() == content; }));
        EXPECT_TRUE(player.PictureMoves());
        player.Click(Button::PlayList);
        EXPECT_TRUE(WaitUntil(isDocked));
        EXPECT_CLOSES_CLEANLY(player);
        EXPECT_EQ(StoredSettings().PlaylistPosition, position);
    }
}

TEST_F(Controls, TheSplitterIsWhereItWasPut)
{
    StoreSettings([](PlayerSettings& settings) { settings.PlaylistPosition = 0; });
    auto player = StartAndShow({ Clips::Make("clip.mp4") });
    EXPECT_TRUE(player.PictureMoves());
    const auto before = player.Video();
    Screen().Hold(before.left - 3, before.top + 40);
    for (int x = 0; x <= 30; x += 10)
        Screen().MoveTo(before.left - 3 + x, before.top + 40);
    EXPECT_TRUE(WaitUntil([&] { return player.Video().left >= before.left + 25; }));
    Screen().Release();
    const auto moved = player.Video();
    std::this_thread::sleep_for(1s); // a drag is kept when it rests
    EXPECT_CLOSES_CLEANLY(player);
    player = StartAndShow({ Clips::Make("clip.mp4") });
    EXPECT_TRUE(WaitUntil([&] { return std::abs(player.Video().left - moved.left) < 3; }));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Controls, ASnapshotIsAPictureInTheFolderOfItsFile)
{
    StoreSettings([&](PlayerSettings& settings) {
        settings.SnapshotPath = InHome("shots");
        // Wide enough for a note of one line.
        settings.RememberLastSize = 1;
        settings.WindowWidth = 1000;
    });
    const auto folder = InHome("shots/clip.mp4 Images");
    auto player = StartAndShow();
    const auto disabled = SettledLook(MiddleOf(player, Button::Snapshot));
    EXPECT_EQ(Start({ Clips::Make("clip.mp4") }).WaitForEnd(), 0);
    NewLook(MiddleOf(player, Button::Snapshot), disabled);
    for (const auto* const name : { "/IMG_00001.png", "/IMG_00002.png" }) {
        player.Click(Button::Snapshot);
        EXPECT_TRUE(WaitUntil([&] { return fs::exists(folder + name); })) << name;
    }
    // With the preview it is higher than words make it.
    EXPECT_TRUE(WaitUntil([&] { return Note(player).height > 90; }));
    EXPECT_GT(MeanOf(QImage(QString::fromStdString(folder + "/IMG_00002.png"))).value(), 30);
    EXPECT_TRUE(WaitUntil([&] { return Note(player).height == 0; }));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Controls, TheBarOfFullScreenComesWithThePointerAndRestsWithIt)
{
    auto player = StartAndShow({ Clips::Make("long.mp4", 60) });
    EXPECT_TRUE(player.PictureMoves());
    const auto before = player.Place();
    const auto area = Screen().Area();
    const BarLayout layout(area.width);
    const auto enter = [&] {
        player.Click(Button::FullScreen);
        EXPECT_TRUE(WaitUntil([&] { return player.Video() == area; }));
        Screen().MoveTo(area.width / 2, area.height / 2);
        EXPECT_TRUE(WaitUntil([&] { return ShowsBar(player); }));
    };
    enter();
    EXPECT_TRUE(WaitUntil([&] { return !ShowsBar(player); }));
    Screen().MoveTo(area.width / 2 + 9, area.height / 2);
    EXPECT_TRUE(WaitUntil([&] { return ShowsBar(player); }));
    // Under the pointer it stays, and another item does not cover it.
    const auto next = layout.ButtonRect(Button::Next);
    Screen().Click(next.left + 5, area.height - 20);
    std::this_thread::sleep_for(2500ms);
    EXPECT_TRUE(ShowsBar(player));
    EXPECT_LT(MeanOf(Screen().Grab({ 0, area.height - 50, area.width, 40 })).value(), 80);
    EXPECT_TRUE(player.PictureMoves());
    const auto leave = layout.ButtonRect(Button::FullScreen);
    Screen().Click(leave.left + 5, area.height - 20);
    EXPECT_TRUE(WaitUntil([&] { return player.Place() == before; }));
    // The keys still are the window's.
    enter();
    const auto stop = layout.ButtonRect(Button::Stop);
    Screen().Click(stop.left + 5, area.height - 20);
    Screen().Press("Escape");
    EXPECT_TRUE(WaitUntil([&] { return player.Place() == before; }));
    EXPECT_FALSE(ShowsBar(player));
    // The buttons have gone with the bar and come back with it.
    int dark = 0; // grabs in a row: while the video takes its place it is dark for a moment, too
    const auto isDark = [&] { return MeanOf(Screen().Grab(player.Video())).value() < 40; };
    EXPECT_TRUE(WaitUntil([&] { return (dark = isDark() ? dark + 1 : 0) > 10; })) << "not stopped";
    EXPECT_CLOSES_CLEANLY(player);
}

} // namespace
} // namespace zentaro::trial
