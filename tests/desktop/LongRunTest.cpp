#include "platform/HandOver.h"
#include "platform/StringStore.h"
#include "tests/desktop/PlayerDesk.h"

namespace zentaro::desktop {
namespace {

class LongRun : public PlayerDesk { };

TEST_F(LongRun, TwoHundredFilesOneAfterTheOtherLeaveMemoryThreadsAndWindowsLevel)
{
    constexpr int kWarmUp = 40;
    constexpr int kFiles = 200;
    auto player = StartAndShow();
    const auto handle = platform::StringStore::Open()->Read(
        platform::StringStore::Root::CurrentUser, platform::SettingsKey("Quorvane Zentaro", "Setting"), "txtHwnd", "");
    const auto clip = Clips::MakeSilent("small.mp4", 30);
    long memory = 0;
    int threads = 0;
    int descriptors = 0;
    std::size_t windows = 0;
    for (int i = 1; i <= kFiles; ++i) {
        const auto path = CopyOf(clip, "clip-" + std::to_string(i) + ".mp4");
        ASSERT_NE(platform::SendHandOverText(handle, path), platform::HandOverOutcome::Silent);
        ASSERT_TRUE(player.WaitForTitle(path));
        ASSERT_TRUE(i % 20 != 0 || player.PictureMoves());
        if (i == 1 || i == kWarmUp) {
            ASSERT_TRUE(player.PictureMoves());
            memory = player.process.PssKiB();
            threads = player.process.ThreadCount();
            descriptors = player.process.OpenDescriptors();
            windows = Screen().CountInside(player.window);
            RecordProperty("memory", std::to_string(memory));
        }
    }
    // An engine's threads take and give back some 20 MB at a time; an engine or a picture left behind with each file
    // would be ten times as much.
    EXPECT_LT(player.process.PssKiB(), memory + memory / 3) << "was " << memory;
    EXPECT_LE(player.process.ThreadCount(), threads + 3) << "was " << threads;
    EXPECT_LE(player.process.OpenDescriptors(), descriptors + 3) << "was " << descriptors;
    ASSERT_TRUE(player.PictureMoves());
    EXPECT_LE(Screen().CountInside(player.window), windows + 2) << "was " << windows;
    EXPECT_CLOSES_CLEANLY(player);
}

} // namespace
} // namespace zentaro::desktop
