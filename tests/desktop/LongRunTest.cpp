#include "platform/HandOver.h"
#include "tests/desktop/PlayerDesk.h"

#include <filesystem>
#include <fstream>

namespace zentaro::trial {
namespace {

class LongRun : public PlayerDesk {
protected:
    /// The number after this label in a file of the process's folder in /proc.
    static long NumberIn(const Process& process, const std::string& file, const std::string& label)
    {
        std::ifstream lines("/proc/" + std::to_string(process.Id()) + "/" + file);
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with(label))
                return std::stol(line.substr(label.size()));
        }
        return 0;
    }
    static std::size_t CountInside(Window window)
    {
        std::size_t count = 0;
        for (const auto child : Screen().Children(window, false))
            count += 1 + CountInside(child);
        return count;
    }
};

TEST_F(LongRun, ManyFilesOneAfterTheOtherLeaveMemoryThreadsAndWindowsLevel)
{
    constexpr int kWarmUp = 25;
    constexpr int kFiles = 100;
    auto player = StartAndShow();
    const auto handle = Published("txtHwnd");
    const auto clip = Clips::Make("small.mp4", 30);
    const auto descriptors = [&] {
        const std::filesystem::directory_iterator entries("/proc/" + std::to_string(player.process.Id()) + "/fd");
        return std::distance(begin(entries), end(entries));
    };
    std::array<long, 4> before{};
    const auto measure = [&] {
        return std::array<long, 4>{ NumberIn(player.process, "smaps_rollup", "Pss:"),
            NumberIn(player.process, "status", "Threads:"), descriptors(),
            static_cast<long>(CountInside(player.window)) };
    };
    for (int i = 1; i <= kFiles; ++i) {
        const auto path = CopyOf(clip, "clip-" + std::to_string(i) + ".mp4");
        ASSERT_NE(platform::SendHandOverText(handle, path), platform::HandOverOutcome::Silent);
        ASSERT_TRUE(player.WaitForTitle(path));
        ASSERT_TRUE(i % 20 != 0 || player.PictureMoves());
        if (i == kWarmUp) {
            ASSERT_TRUE(player.PictureMoves());
            before = measure();
        }
    }
    ASSERT_TRUE(player.PictureMoves());
    const auto after = measure();
    // An engine's threads take and give back some 20 MB at a time; an engine or a picture left behind with each file
    // would be ten times as much.
    EXPECT_LT(after[0], before[0] + before[0] / 3) << "KiB of memory, was " << before[0];
    EXPECT_LE(after[1], before[1] + 3) << "threads, was " << before[1];
    EXPECT_LE(after[2], before[2] + 3) << "descriptors, was " << before[2];
    EXPECT_LE(after[3], before[3] + 2) << "windows, was " << before[3];
    EXPECT_CLOSES_CLEANLY(player);
}

} // namespace
} // namespace zentaro::trial
