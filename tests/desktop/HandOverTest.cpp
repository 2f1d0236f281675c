#include "platform/HandOver.h"
#include "platform/StringStore.h"
#include "tests/desktop/PlayerDesk.h"
#include "tests/desktop/TitleLog.h"

#include <csignal>
#include <filesystem>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace zentaro::desktop {
namespace {

namespace fs = std::filesystem;

class HandOver : public PlayerDesk {
protected:
    static std::string Published(const char* name)
    {
        return platform::StringStore::Open()->Read(
            platform::StringStore::Root::CurrentUser, platform::SettingsKey("Quorvane Zentaro", "Setting"), name, "-1");
    }

    /// A start that is to end by itself, with 0 and without a word.
    void ExpectMessenger(const std::vector<std::string>& arguments, const std::string& folder = {})
    {
        auto second = Start(arguments, folder);
        EXPECT_EQ(second.WaitForEnd(), 0);
        EXPECT_EQ(second.ErrorText(), "");
    }
};

TEST_F(HandOver, ASecondStartPlaysItsFileInTheFirstPlayer)
{
    auto player = StartAndShow({ CopyOf(Clips::Make("clip.mp4"), "first.mp4") });
    EXPECT_TRUE(player.WaitForTitle("first.mp4"));
    const Bystander other(Screen());
    EXPECT_FALSE(Screen().HasState(player.window, "_NET_WM_STATE_DEMANDS_ATTENTION"));

    ExpectMessenger({ CopyOf(Clips::Make("clip.mp4"), "second.mp4") });
    EXPECT_EQ(player.Title(), "Zentaro - (" + InHome("second.mp4") + ")");
    EXPECT_TRUE(WaitUntil([&] { return Screen().HasState(player.window, "_NET_WM_STATE_DEMANDS_ATTENTION"); }));
    EXPECT_NE(Screen().Active(), player.window);
    EXPECT_TRUE(player.PictureMoves());

    // From a folder of its own, with blanks, with quotes around and in the name, and in two words.
    CopyOf(Clips::Make("clip.mp4"), "deep down/third one.mp4");
    ExpectMessenger({ "third one.mp4" }, InHome("deep down"));
    EXPECT_EQ(player.Title(), "Zentaro - (" + InHome("deep down/third one.mp4") + ")");
    ExpectMessenger({ "\"" + CopyOf(Clips::Make("clip.mp4"), "deep down/fourth.mp4") + "\"" });
    EXPECT_EQ(player.Title(), "Zentaro - (" + InHome("deep down/fourth.mp4") + ")");
    ExpectMessenger({ CopyOf(Clips::Make("clip.mp4"), "the \"fifth\".mp4") });
    EXPECT_EQ(player.Title(), "Zentaro - (" + InHome("the \"fifth\".mp4") + ")");
    CopyOf(Clips::Make("clip.mp4"), "deep down/sixth one.mp4");
    ExpectMessenger({ InHome("deep"), "down/sixth", "one.mp4" });
    EXPECT_EQ(player.Title(), "Zentaro - (" + InHome("deep down/sixth one.mp4") + ")");

    // Nothing to play, and no word of it.
    WriteWholeFile(InHome("notes.txt"), "no clip");
    ExpectMessenger({ InHome("notes.txt") });
    ExpectMessenger({});
    EXPECT_EQ(player.Title(), "Zentaro - (" + InHome("deep down/sixth one.mp4") + ")");
    EXPECT_NE(Screen().Active(), player.window);
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(HandOver, AddAtTheOwnStartAddsEverythingAndPlaysNothing)
{
    auto player = StartAndShow({ CopyOf(Clips::Make("clip.mp4"), "one.mp4"), "*Add" });
    ExpectMessenger({ CopyOf(Clips::Make("clip.mp4"), "two.mp4") });
    EXPECT_EQ(player.Title(), "Zentaro");
    EXPECT_EQ(player.Video(), Rect{});
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(HandOver, AddInAHandedOverTextIsAPartOfTheFilesName)
{
    auto player = StartAndShow({ CopyOf(Clips::Make("clip.mp4"), "one.mp4") });
    EXPECT_TRUE(player.WaitForTitle("one.mp4"));
    auto second = Start({ CopyOf(Clips::Make("clip.mp4"), "two.mp4"), "*Add" });
    EXPECT_EQ(player.AnswerDialog(), "Zentaro");
    EXPECT_EQ(second.WaitForEnd(), 0);
    EXPECT_EQ(player.Title(), "Zentaro - (" + InHome("one.mp4") + ")");
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(HandOver, AKilledPlayerIsFollowedByANewOne)
{
    const auto first = CopyOf(Clips::Make("clip.mp4"), "one.mp4");
    const auto second = CopyOf(Clips::Make("clip.mp4"), "two.mp4");
    for (const auto& arguments : { std::vector<std::string>{ first }, {} }) {
        auto killed = StartAndShow();
        killed.process.Kill();
        auto player = StartAndShow(arguments);
        ExpectMessenger({ second });
        EXPECT_TRUE(player.WaitForTitle("two.mp4"));
        player.process.Kill();
    }
}

TEST_F(HandOver, WithOnePlayerPerFileTheSecondTakesOver)
{
    auto first = StartAndShow({ CopyOf(Clips::Make("clip.mp4"), "one.mp4") });
    StoreSettings([](PlayerSettings& settings) { settings.UseNewPlayer = 1; });
    auto second = StartAndShow({ CopyOf(Clips::Make("clip.mp4"), "two.mp4") });
    EXPECT_TRUE(second.WaitForTitle("two.mp4"));
    EXPECT_TRUE(first.WaitForTitle("one.mp4"));
    StoreSettings([](PlayerSettings&) {});
    ExpectMessenger({ CopyOf(Clips::Make("clip.mp4"), "three.mp4") });
    EXPECT_TRUE(second.WaitForTitle("three.mp4"));
    EXPECT_TRUE(first.WaitForTitle("one.mp4"));
    EXPECT_EQ(first.Close(), 0);
    EXPECT_CLOSES_CLEANLY(second);
}

TEST_F(HandOver, OfTwentyStartsAtOnceOnePlayerReceivesAllFiles)
{
    constexpr int kStarts = 20;
    const auto clip = Clips::MakeSilent("small.mp4", 30);
    const TitleLog log(Screen());
    std::vector<std::string> paths;
    std::vector<Process> starts;
    for (int i = 0; i < kStarts; ++i)
        paths.push_back(CopyOf(clip, "at-once-" + std::to_string(100 + i) + ".mp4"));
    for (const auto& path : paths)
        starts.push_back(Start({ path }));
    const auto countRunning = [&] {
        return std::count_if(starts.begin(), starts.end(), [](Process& start) { return start.IsRunning(); });
    };
    EXPECT_TRUE(WaitUntil([&] { return countRunning() == 1; }, 2 * kPatience));
    for (const auto& path : paths)
        EXPECT_TRUE(WaitUntil([&] { return log.Contains(path); })) << path;
    for (auto& start : starts) {
        if (start.IsRunning()) {
            auto player = Show(std::move(start));
            EXPECT_CLOSES_CLEANLY(player);
        } else {
            EXPECT_EQ(start.WaitForEnd(), 0);
            EXPECT_EQ(start.ErrorText(), "");
        }
    }
}

TEST_F(HandOver, SendersThatDieOrLieHarmNobody)
{
    auto player = StartAndShow({ CopyOf(Clips::Make("clip.mp4"), "one.mp4") });
    EXPECT_TRUE(player.WaitForTitle("one.mp4"));
    const auto handle = Published("txtHwnd");
    sockaddr_un address{ .sun_family = AF_UNIX, .sun_path = {} };
    ASSERT_EQ(chdir(InHome("run/zentaro").c_str()), 0); // a socket's path must be short
    handle.copy(address.sun_path, sizeof address.sun_path - 1);
    using namespace std::string_literals;
    const std::vector<std::string> pieces = { "", "ZN", "ZNT1\xFF\xFF\xFF\x7F"s + "/half", "ZNT1\x05\0\0\0/a"s,
        "GET / HTTP/1.0\r\n\r\n" };
    for (const auto& bytes : pieces) {
        const int sender = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        ASSERT_EQ(connect(sender, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(send(sender, bytes.data(), bytes.size(), MSG_NOSIGNAL), static_cast<ssize_t>(bytes.size()));
        close(sender);
    }
    ASSERT_EQ(chdir("/"), 0);
    ExpectMessenger({ CopyOf(Clips::Make("clip.mp4"), "two.mp4") });
    EXPECT_TRUE(player.WaitForTitle("two.mp4"));

    // A text of 1 MB names no file; its sender is told when the user has been.
    auto sender = std::thread([&] {
        EXPECT_NE(platform::SendHandOverText(handle, std::string(1 << 20, 'x')), platform::HandOverOutcome::Silent);
    });
    EXPECT_EQ(player.AnswerDialog(), "Zentaro");
    sender.join();
    EXPECT_TRUE(player.WaitForTitle("two.mp4"));
    EXPECT_CLOSES_CLEANLY(player);
}

} // namespace
} // namespace zentaro::desktop
