#include "shell/SkinPasses.h"
#include "tests/desktop/PlayerDesk.h"

#include <algorithm>
#include <cmath>
#include <csignal>
#include <filesystem>

namespace zentaro::trial {
namespace {

namespace fs = std::filesystem;

class Controls : public PlayerDesk {
protected:
    /// Every picture in a colour of its own.
    static std::uint32_t ColourOf(SkinImage image)
    {
        const auto number = static_cast<std::uint32_t>(image);
        return (number + 1) << 16 | (255 - number) << 8 | 80;
    }
    void UseFlatSkin() const
    {
        const auto folder = InHome("program/images");
        fs::remove(folder);
        for (const auto& [image, name] : SkinLoadOrder()) {
            const auto path = folder + "/" + name;
            fs::create_directories(fs::path(path).parent_path());
            // Readers of pictures go by what a file holds.
            const auto colour = ColourOf(image);
            std::string bytes = "P6 1 1 255\n";
            for (const int shift : { 16, 8, 0 })
                bytes += static_cast<char>(colour >> shift & 0xFF);
            WriteWholeFile(path, bytes);
        }
    }
    /// The middle of a button; `scale`: screen pixels for each of the window's own.
    static Rect MiddleOf(const ShownPlayer& player, Button button, double scale = 1)
    {
        const auto place = player.Place();
        const auto own = [&](int pixels) { return static_cast<int>(std::lround(pixels / scale)); };
        const auto rect = WindowLayout(own(place.width), own(place.height)).ButtonRect(button);
        const auto onScreen = [&](double pixels) { return static_cast<int>(pixels * scale); };
        return { place.left + onScreen(rect.left + rect.width / 2.0),
            place.top + onScreen(rect.top + rect.height / 2.0), 1, 1 };
    }
    static bool Shows(const ShownPlayer& player, Button button, ButtonState state, double scale = 1)
    {
        return WaitUntil([&] {
            const auto colour = Screen().Grab(MiddleOf(player, button, scale)).pixel(0, 0) & 0xFFFFFF;
            return colour == ColourOf(ButtonImage(button, state));
        });
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
    UseFlatSkin();
    auto player = StartAndShow();
    const std::vector<Button> always = { Button::Play, Button::PlayList, Button::Open, Button::SoundOn,
        Button::Minimize, Button::Maximize, Button::Close };
    const std::vector<Button> whilePlaying = { Button::Pause, Button::Stop, Button::FastForward, Button::Rewind,
        Button::Next, Button::Previous, Button::FullScreen, Button::Snapshot };
    for (const auto button : whilePlaying)
        EXPECT_TRUE(Shows(player, button, ButtonState::Disabled)) << static_cast<int>(button);
    EXPECT_EQ(Start({ Clips::Make("clip.mp4") }).WaitForEnd(), 0);
    EXPECT_TRUE(player.PictureMoves());
    Screen().Activate(player.window);
    const auto before = player.Place();
    auto all = always;
    all.insert(all.end(), whilePlaying.begin(), whilePlaying.end());
    for (const auto button : all) {
        SCOPED_TRACE(static_cast<int>(button));
        const auto middle = MiddleOf(player, button);
        EXPECT_TRUE(Shows(player, button, ButtonState::Normal));
        Screen().MoveTo(middle.left, middle.top);
        EXPECT_TRUE(Shows(player, button, ButtonState::Over));
        Screen().Hold(middle.left, middle.top);
        EXPECT_TRUE(Shows(player, button, ButtonState::Press));
        Screen().MoveTo(0, 0);
        EXPECT_TRUE(Shows(player, button, ButtonState::Normal));
        Screen().Release();
    }
    EXPECT_TRUE(player.PictureMoves());
    EXPECT_TRUE(player.Dialogs().empty());
    EXPECT_EQ(player.Place(), before);
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Controls, StayInPlaceAtEveryScaleFactor)
{
    UseFlatSkin();
    for (const double scale : { 1.5, 2.0 }) {
        SCOPED_TRACE(scale);
        auto player = Show(Start({ Clips::Make("clip.mp4") }, ".", { "QT_SCALE_FACTOR=" + std::to_string(scale) }));
        EXPECT_TRUE(player.PictureMoves());
        const auto before = player.Place();
        EXPECT_EQ(before.width, WindowLayout::kFirstWidth * scale);
        EXPECT_GE(before.top, 0);
        for (const auto button : { Button::Close, Button::Play, Button::PlayList, Button::SoundOn, Button::Snapshot })
            EXPECT_TRUE(Shows(player, button, ButtonState::Normal, scale)) << static_cast<int>(button);
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
        EXPECT_TRUE(WaitUntil(isDocked));
        player.Click(Button::PlayList);
        EXPECT_TRUE(WaitUntil([&] { return player.Video() == content; }));
        EXPECT_TRUE(player.PictureMoves());
        player.Click(Button::PlayList);
        EXPECT_TRUE(WaitUntil(isDocked));
        EXPECT_CLOSES_CLEANLY(player);
        EXPECT_EQ(StoredSettings().PlaylistPosition, position);
    }
}

TEST_F(Controls, ASnapshotIsAPictureInTheFolderOfItsFile)
{
    UseFlatSkin();
    StoreSettings([&](PlayerSettings& settings) {
        settings.SnapshotPath = InHome("shots");
        // Wide enough for a note of one line.
        settings.RememberLastSize = 1;
        settings.WindowWidth = 1000;
    });
    const auto folder = InHome("shots/clip.mp4 Images");
    fs::create_directory(InHome("shots"));
    WriteWholeFile(folder, "in the way");
    auto player = StartAndShow({ Clips::Make("clip.mp4") });
    EXPECT_TRUE(player.PictureMoves());
    ASSERT_TRUE(Shows(player, Button::Snapshot, ButtonState::Normal));
    player.Click(Button::Snapshot);
    EXPECT_TRUE(WaitUntil([&] { return Note(player).height > 0; }));

    fs::remove(folder);
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
    auto player = StartAndShow({ Clips::Make("clip.mp4") });
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
    EXPECT_CLOSES_CLEANLY(player);
}

} // namespace
} // namespace zentaro::trial
