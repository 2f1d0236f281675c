#include "tests/desktop/PlayerDesk.h"

#include <array>
#include <filesystem>

namespace zentaro::trial {
namespace {

class LongRun : public PlayerDesk {
protected:
    /// KiB of memory, threads and open files.
    static std::array<long, 3> Used(const ShownPlayer& player)
    {
        const auto folder = "/proc/" + std::to_string(player.process.Id());
        const auto number = [&](const char* file, const std::string& label) {
            const auto text = ReadWholeFile(folder + file);
            return std::stol(text.substr(text.find(label) + label.size()));
        };
        const std::filesystem::directory_iterator files(folder + "/fd");
        return { number("/smaps_rollup", "\nPss:"), number("/status", "\nThreads:"),
            std::distance(begin(files), end(files)) };
    }
};

TEST_F(LongRun, ManyFilesOneAfterTheOtherLeaveMemoryThreadsAndWindowsLevel)
{
    constexpr int kWarmUp = 25;
    constexpr int kFiles = 100;
    auto player = StartAndShow();
    const auto clip = Clips::Make("small.mp4", 30);
    std::array<long, 3> before{};
    for (int i = 1; i <= kFiles; ++i) {
        const auto path = CopyOf(clip, "clip-" + std::to_string(i) + ".mp4");
        ASSERT_EQ(Start({ path }).WaitForEnd(), 0);
        ASSERT_TRUE(player.WaitForTitle(path));
        ASSERT_TRUE(i % 20 != 0 || player.PictureMoves());
        if (i == kWarmUp) {
            ASSERT_TRUE(player.PictureMoves());
            before = Used(player);
        }
    }
    ASSERT_TRUE(player.PictureMoves());
    auto after = Used(player);
    // On a busy machine some items are still ending; what is left behind stays.
    WaitUntil([&] {
        after = Used(player);
        return after[0] < before[0] + before[0] / 3 && after[1] <= before[1] + 3;
    });
    // An engine's threads take and give back some 20 MB at a time; an engine or a picture left behind with each file
    // would be ten times as much.
    EXPECT_LT(after[0], before[0] + before[0] / 3) << "KiB of memory, was " << before[0];
    EXPECT_LE(after[1], before[1] + 3) << "threads, was " << before[1];
    EXPECT_LE(after[2], before[2] + 3) << "descriptors, was " << before[2];
    EXPECT_CLOSES_CLEANLY(player);
}

} // namespace
} // namespace zentaro::trial
