#include "base/DetachedThread.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <chrono>

namespace zentaro {
namespace {

TEST(DetachedThread, each_of_many_short_ones_does_its_own_work_once)
{
    static std::array<std::atomic<int>, 4000> done;
    static std::atomic<int> all = 0;
    for (auto& own : done)
        StartDetached([&own] {
            ++own;
            ++all;
        });
    for (int tries = 0; all < static_cast<int>(done.size()) && tries < 3000; ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    int wrong = 0;
    for (const auto& own : done)
        wrong += own != 1;
    EXPECT_EQ(wrong, 0);
}

} // namespace
} // namespace zentaro
