#include "tests/desktop/PlayerDesk.h"

#include <csignal>

namespace zentaro::trial {
namespace {

class Closing : public PlayerDesk { };

TEST_F(Closing, LeavesNothingAtAnyMoment)
{
    WriteWholeFile(InHome("text.avi"), "Only words, no picture.\n");
    const std::vector<std::function<void(ShownPlayer&)>> moments = { [](ShownPlayer&) {}, // the file is opening
        [](ShownPlayer& player) { EXPECT_TRUE(player.PictureMoves()); },
        [](ShownPlayer& player) { EXPECT_EQ(player.AnswerDialog(), "Zentaro"); },
        [](ShownPlayer& player) { EXPECT_TRUE(player.WaitForDialogs(1)); } };
    for (const int signal : { 0, SIGTERM, SIGINT, SIGHUP }) {
        for (std::size_t moment = 0; moment < moments.size(); ++moment) {
            SCOPED_TRACE(std::to_string(signal) + " at " + std::to_string(moment));
            // A blank folder in the file becomes a real one with the first write.
            StoreSettings([](PlayerSettings& settings) { settings.DefaultFolder = " "; });
            auto player = StartAndShow({ moment < 2 ? Clips::Make("clip.mp4") : InHome("text.avi") });
            moments[moment](player);
            if (signal != 0)
                player.process.Signal(signal);
            else if (moment < 3) // a box keeps the window from being closed
                Screen().Close(player.window);
            else
                continue;
            EXPECT_ENDED_CLEANLY(player);
            EXPECT_EQ(StoredSettings().DefaultFolder, Home());
        }
    }
}

} // namespace
} // namespace zentaro::trial
