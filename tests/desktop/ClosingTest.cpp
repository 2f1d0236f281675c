#include "tests/desktop/PlayerDesk.h"

#include <csignal>

namespace zentaro::desktop {
namespace {

class Closing : public PlayerDesk {
protected:
    /// A blank folder in the file becomes a real one with the first write.
    void StoreUnwrittenSettings(std::int32_t playMode = 1) const
    {
        StoreSettings([&](PlayerSettings& settings) {
            settings.DefaultFolder = " ";
            settings.PlayMode = playMode;
        });
    }
    void ExpectWritten() const { EXPECT_EQ(StoredSettings().DefaultFolder, Home()); }
};

TEST_F(Closing, LeavesNothingWhileAFileIsOpeningOrPlaying)
{
    const auto clip = Clips::Make("clip.mp4");
    for (const int signal : { 0, SIGTERM, SIGINT, SIGHUP }) {
        for (const bool waitForPicture : { false, true }) {
            StoreUnwrittenSettings();
            auto player = StartAndShow({ clip });
            EXPECT_TRUE(!waitForPicture || player.PictureMoves());
            if (signal == 0) {
                EXPECT_CLOSES_CLEANLY(player);
            } else {
                player.process.Signal(signal);
                EXPECT_EQ(player.process.WaitForEnd(), 0);
                EXPECT_TRUE(WaitUntil([&] { return ProcessesAtHome(Home()).empty(); }, 5s));
            }
            ExpectWritten();
        }
    }
}

TEST_F(Closing, LeavesNothingAfterTheEndOrAFailure)
{
    constexpr std::int32_t kPlayNormal = 0;
    StoreUnwrittenSettings(kPlayNormal);
    auto player = StartAndShow({ Clips::MakeSilent("short.mp4", 1) });
    EXPECT_TRUE(player.PictureMoves());
    const auto label = player.OnScreen(player.Layout().TimeLabel());
    // The picture stands, and so does the clock.
    Picture before;
    auto since = std::chrono::steady_clock::now();
    EXPECT_TRUE(WaitUntil([&] {
        auto now = Screen().Grab(label);
        if (ShareThatDiffers(before, now) > 0)
            since = std::chrono::steady_clock::now();
        before = std::move(now);
        return std::chrono::steady_clock::now() - since > 1500ms;
    }));
    EXPECT_CLOSES_CLEANLY(player);
    ExpectWritten();

    StoreUnwrittenSettings();
    WriteWholeFile(InHome("text.avi"), "Only words, no picture.\n");
    auto failed = StartAndShow({ InHome("text.avi") });
    EXPECT_EQ(failed.AnswerDialog(), "Zentaro");
    EXPECT_CLOSES_CLEANLY(failed);
    ExpectWritten();

    // A player that waits behind a message box can still be told to end.
    StoreUnwrittenSettings();
    auto asking = StartAndShow({ InHome("text.avi") });
    EXPECT_TRUE(WaitUntil([&] { return !asking.Dialogs().empty(); }));
    asking.process.Signal(SIGTERM);
    EXPECT_EQ(asking.process.WaitForEnd(), 0);
    ExpectWritten();
}

} // namespace
} // namespace zentaro::desktop
