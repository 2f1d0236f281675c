#include "tests/desktop/PlayerDesk.h"
#include "tests/desktop/TitleLog.h"

#include <algorithm>
#include <filesystem>

namespace zentaro::desktop {
namespace {

namespace fs = std::filesystem;

class List : public PlayerDesk {
protected:
    std::string ShortClip(const std::string& name) const { return CopyOf(Clips::Make("short.mp4", 2), name); }

    static Rect ContentOf(const ShownPlayer& player) { return player.OnScreen(player.Layout().Content()); }
    static bool DropOnVideo(const ShownPlayer& player, const std::vector<std::string>& paths)
    {
        const auto content = ContentOf(player);
        return Screen().DropFiles(content.Right() - 60, content.top + 60, paths);
    }
    static bool DropOnList(const ShownPlayer& player, const std::vector<std::string>& paths)
    {
        const auto content = ContentOf(player);
        return Screen().DropFiles(content.left + 60, content.Bottom() - 60, paths);
    }
    /// A row has left the plain ground of the empty list.
    static bool ShowsRow(const ShownPlayer& player, int row)
    {
        const auto content = ContentOf(player);
        const auto look = Screen().Grab({ content.left + 12, content.top + 80 * row + 12, 56, 56 });
        return look.Mean().Brightest() > 60;
    }
    /// Nothing plays: the video looks the same for longer than a clip stands still.
    static bool Stands(const ShownPlayer& player)
    {
        const auto content = ContentOf(player);
        const Rect video{ content.Right() - 150, content.top, 150, content.height };
        const auto look = Screen().Grab(video);
        std::this_thread::sleep_for(700ms);
        return ShareThatDiffers(look, Screen().Grab(video)) == 0;
    }
    static void Click(const ShownPlayer& player, Button button)
    {
        const auto place = player.OnScreen(player.Layout().ButtonRect(button));
        Screen().Click(place.left + place.width / 2, place.top + place.height / 2);
    }
    /// The names of the media in the titles, each change once.
    static std::vector<std::string> Played(const TitleLog& log)
    {
        std::vector<std::string> names;
        for (const auto& title : log.Titles()) {
            const auto end = title.rfind(".mp4)");
            if (end == std::string::npos)
                continue;
            const auto start = title.rfind('/', end) + 1;
            const auto name = title.substr(start, end - start);
            if (names.empty() || names.back() != name)
                names.push_back(name);
        }
        return names;
    }
};

TEST_F(List, ClipsDroppedOnTheVideoPlayOneAfterTheOtherToTheEnd)
{
    StoreSettings([](PlayerSettings& settings) { settings.RepeatMode = 0; });
    const TitleLog log(Screen());
    auto player = StartAndShow();
    ASSERT_TRUE(
        DropOnVideo(player, { ShortClip("a.mp4"), InHome("notes.txt"), ShortClip("b.mp4"), ShortClip("c.mp4") }));
    EXPECT_TRUE(player.WaitForTitle("c.mp4"));
    EXPECT_TRUE(ShowsRow(player, 0) && ShowsRow(player, 1) && ShowsRow(player, 2));
    // After the last one nothing follows.
    EXPECT_TRUE(WaitUntil([&] { return Stands(player); }));
    EXPECT_EQ(Played(log), (std::vector<std::string>{ "a", "b", "c" }));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(List, ClipsDroppedOnTheListStartNothingUntilOneIsChosen)
{
    auto player = StartAndShow();
    const auto folder = InHome("films");
    fs::create_directories(folder + "/more");
    fs::copy_file(ShortClip("x.mp4"), folder + "/film 10.mp4");
    fs::copy_file(ShortClip("y.mp4"), folder + "/film 9.mp4");
    fs::copy_file(ShortClip("z.mp4"), folder + "/more/last.mp4");
    ASSERT_TRUE(DropOnList(player, { folder }));
    EXPECT_TRUE(WaitUntil([&] { return ShowsRow(player, 2); }));
    EXPECT_EQ(player.Title(), "Zentaro");
    EXPECT_TRUE(Stands(player));

    // The second row, by a double click, which also hides the list.
    const auto content = ContentOf(player);
    Screen().DoubleClick(content.left + 100, content.top + 120);
    EXPECT_TRUE(player.WaitForTitle("film 10.mp4"));
    EXPECT_TRUE(WaitUntil([&] { return player.Video().width > content.width - 20; }));
    EXPECT_TRUE(player.WaitForTitle("last.mp4"));
    EXPECT_TRUE(player.WaitForTitle("film 9.mp4")); // round again
    Click(player, Button::PlayList);
    EXPECT_TRUE(WaitUntil([&] { return player.Video().width < content.width - 20; }));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(List, NormalModePlaysOneAndRepeatOnePlaysItAgain)
{
    StoreSettings([](PlayerSettings& settings) { settings.PlayMode = 0; });
    {
        const TitleLog log(Screen());
        auto player = StartAndShow();
        ASSERT_TRUE(DropOnVideo(player, { ShortClip("a.mp4"), ShortClip("b.mp4") }));
        EXPECT_TRUE(player.WaitForTitle("a.mp4"));
        EXPECT_TRUE(WaitUntil([&] { return Stands(player); }));
        EXPECT_EQ(Played(log), std::vector<std::string>{ "a" });
        EXPECT_CLOSES_CLEANLY(player);
    }
    StoreSettings([](PlayerSettings& settings) { settings.RepeatMode = 1; });
    auto player = StartAndShow({ ShortClip("c.mp4") });
    EXPECT_TRUE(player.WaitForTitle("c.mp4"));
    // Three times as long as the clip.
    for (int look = 0; look < 3; ++look) {
        EXPECT_TRUE(WaitUntil([&] { return player.PictureMoves(); }));
        std::this_thread::sleep_for(2s);
    }
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(List, ClosingInTheMiddleOfManyFilesLeavesNothing)
{
    auto player = StartAndShow();
    std::vector<std::string> clips;
    for (int i = 0; i < 40; ++i)
        clips.push_back(ShortClip(std::to_string(i) + ".mp4"));
    ASSERT_TRUE(DropOnVideo(player, clips));
    // The first one plays while the others are still being added.
    EXPECT_TRUE(player.WaitForTitle("0.mp4"));
    EXPECT_CLOSES_CLEANLY(player);
}

} // namespace
} // namespace zentaro::desktop
