#include "tests/desktop/PlayerDesk.h"
#include "tests/platform/PrivateBus.h"

#include <algorithm>

namespace zentaro::trial {
namespace {

class HandOver : public PlayerDesk {
protected:
    /// A start that is to end by itself, with 0 and without a word.
    void ExpectMessenger(const std::vector<std::string>& arguments, const std::string& folder = ".") const
    {
        auto second = Start(arguments, folder);
        EXPECT_EQ(second.WaitForEnd(), 0);
        EXPECT_EQ(second.Output(), "");
    }
    std::string TitleOf(const std::string& name) const { return "Zentaro - (" + InHome(name) + ")"; }
};

TEST_F(HandOver, ASecondStartPlaysItsFileInTheFirstPlayer)
{
    auto player = StartAndShow({ ClipNamed("first.mp4") });
    EXPECT_TRUE(player.WaitForTitle("first.mp4"));
    const Process other({ Helper("drag") });
    EXPECT_TRUE(WaitUntil([&] { return other.Output() == "shown\n" && !Screen().IsActive(player.window); }));
    EXPECT_FALSE(Screen().HasState(player.window, "_NET_WM_STATE_DEMANDS_ATTENTION"));

    ExpectMessenger({ ClipNamed("second.mp4") });
    EXPECT_EQ(player.Title(), TitleOf("second.mp4"));
    EXPECT_TRUE(WaitUntil([&] { return Screen().HasState(player.window, "_NET_WM_STATE_DEMANDS_ATTENTION"); }));
    EXPECT_FALSE(Screen().IsActive(player.window));
    EXPECT_TRUE(player.PictureMoves());

    // From a folder of its own, with blanks and quotes in the name.
    ClipNamed("deep down/third \"one\".mp4");
    ExpectMessenger({ "third \"one\".mp4" }, InHome("deep down"));
    EXPECT_EQ(player.Title(), TitleOf("deep down/third \"one\".mp4"));

    // Nothing to play, and no word of it.
    WriteWholeFile(InHome("notes.txt"), "no clip");
    ExpectMessenger({ InHome("notes.txt") });
    ExpectMessenger({});
    EXPECT_EQ(player.Title(), TitleOf("deep down/third \"one\".mp4"));
    EXPECT_FALSE(Screen().IsActive(player.window));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(HandOver, AKilledPlayerIsFollowedByANewOne)
{
    StartAndShow().process.Kill();
    auto player = StartAndShow({ ClipNamed("one.mp4"), "*Add" });
    ExpectMessenger({ ClipNamed("two.mp4") });
    EXPECT_EQ(player.Title(), "Zentaro") << "an own start with this word plays nothing";
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(HandOver, OfTwentyStartsAtOnceOnePlayerReceivesAllFiles)
{
    const platform::PrivateBus bus;
    const auto clip = Clips::Make("clip.mp4");
    std::vector<Process> starts;
    for (int i = 0; i < 20; ++i) {
        starts.push_back(Start({ CopyOf(clip, "at-once-" + std::to_string(i) + ".mp4") }, ".",
            { "DBUS_SESSION_BUS_ADDRESS=" + bus.Address() }));
    }
    const auto isRunning = [](Process& start) { return start.IsRunning(); };
    EXPECT_TRUE(WaitUntil([&] { return std::count_if(starts.begin(), starts.end(), isRunning) == 1; }, 6 * kPatience));
    auto player = Show(std::move(*std::find_if(starts.begin(), starts.end(), isRunning)));
    EXPECT_TRUE(WaitUntil([&] {
        return bus
            .OutputOf("busctl --user get-property org.mpris.MediaPlayer2.zentaro /org/mpris/MediaPlayer2 "
                      "org.mpris.MediaPlayer2.TrackList Tracks")
            .starts_with("ao 20 ");
    }));
    EXPECT_CLOSES_CLEANLY(player);
    for (auto& start : starts) {
        if (start.Id() > 0) {
            EXPECT_EQ(start.WaitForEnd(), 0);
            EXPECT_EQ(start.Output(), "");
        }
    }
}

} // namespace
} // namespace zentaro::trial
