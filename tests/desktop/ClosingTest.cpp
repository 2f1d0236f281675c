#include "tests/desktop/PlayerDesk.h"

#include <csignal>

namespace zentaro::trial {
namespace {

class Closing : public PlayerDesk {
protected:
    /// A blank folder in the file becomes a real one with the first write.
    void StoreUnwrittenSettings() const
    {
        StoreSettings([](PlayerSettings& settings) { settings.DefaultFolder = " "; });
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
            if (signal == 0)
                Screen().Close(player.window);
            else
                player.process.Signal(signal);
            EXPECT_ENDED_CLEANLY(player);
            ExpectWritten();
        }
    }
}

TEST_F(Closing, LeavesNothingAfterAFailureOrBehindABox)
{
    WriteWholeFile(InHome("text.avi"), "Only words, no picture.\n");
    for (const bool isAnswered : { true, false }) {
        StoreUnwrittenSettings();
        auto player = StartAndShow({ InHome("text.avi") });
        if (isAnswered) {
            EXPECT_EQ(player.AnswerDialog(), "Zentaro");
            Screen().Close(player.window);
        } else {
            EXPECT_TRUE(player.WaitForDialogs(1));
            player.process.Signal(SIGTERM);
        }
        EXPECT_ENDED_CLEANLY(player);
        ExpectWritten();
    }
}

} // namespace
} // namespace zentaro::trial
