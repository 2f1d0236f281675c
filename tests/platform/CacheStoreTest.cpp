#include "platform/CacheStore.h"
#include "tests/platform/WorkingFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace zentaro::platform {
namespace {

constexpr std::int64_t kPlenty = 512 << 20;

class CacheStoreTest : public testing::Test {
protected:
    std::unique_ptr<CacheStore> Open(std::int64_t limit = kPlenty) const { return CacheStore::Open(file, limit); }
    static pid_t Fork(const std::function<void()>& work)
    {
        const auto child = fork();
        if (child == 0) {
            work();
            _exit(0);
        }
        return child;
    }

    const WorkingFolder folder;
    const std::string file = folder / "new folder/seen.db";
};

TEST_F(CacheStoreTest, players_share_what_each_of_them_writes)
{
    const auto mine = Open();
    const auto theirs = Open();
    const std::string bytes("\0\xFF\x01 value", 9);
    EXPECT_EQ(mine->Read("/v/\xFF.mkv"), std::nullopt);
    EXPECT_TRUE(mine->Write("/v/\xFF.mkv", bytes));
    EXPECT_EQ(theirs->Read("/v/\xFF.mkv"), bytes);
    EXPECT_TRUE(theirs->Write("/v/\xFF.mkv", ""));
    EXPECT_EQ(mine->Read("/v/\xFF.mkv"), "");
    EXPECT_EQ(Open()->Read("/v/\xFF.mk"), std::nullopt);
}

TEST_F(CacheStoreTest, what_was_written_longest_ago_goes_when_the_limit_is_reached)
{
    constexpr std::int64_t limit = 1 << 20;
    const auto store = Open(limit);
    const std::string value(10'000, 'x');
    for (int i = 0; i < 500; ++i)
        EXPECT_TRUE(store->Write(std::to_string(i), value));
    EXPECT_EQ(store->Read("0"), std::nullopt);
    EXPECT_EQ(store->Read("499"), value);
    EXPECT_LT(std::filesystem::file_size(file), 5 * limit);
}

TEST_F(CacheStoreTest, a_damaged_file_is_thrown_away)
{
    std::filesystem::create_directory(folder / "new folder");
    std::ofstream(file) << std::string(5000, 'z');
    EXPECT_TRUE(Open()->Write("key", "value"));
    EXPECT_EQ(Open()->Read("key"), "value");

    // Damage anywhere costs values, and never gives another one.
    for (int i = 0; i < 100; ++i)
        Open()->Write(std::to_string(i), std::string(500, 'a'));
    const auto size = static_cast<std::streamoff>(std::filesystem::file_size(file));
    for (std::streamoff at = 0; at < size; at += 1000) {
        std::fstream(file, std::ios::in | std::ios::out | std::ios::binary).seekp(at) << std::string(20, '\x5A');
        const auto store = Open();
        for (int i = 0; i < 100; ++i)
            EXPECT_EQ(store->Read(std::to_string(i)).value_or(std::string(500, 'a')), std::string(500, 'a'));
    }
    EXPECT_TRUE(Open()->Write("key", "again"));
    EXPECT_EQ(Open()->Read("key"), "again");
}

TEST_F(CacheStoreTest, without_a_place_nothing_is_kept)
{
    std::ofstream(folder / "new folder") << "no folder";
    const auto store = Open();
    EXPECT_FALSE(store->Write("key", "value"));
    EXPECT_EQ(store->Read("key"), std::nullopt);
    EXPECT_EQ(CacheStore::Open("", kPlenty), nullptr);
    // The device of a full disk: it takes nothing.
    const auto full = CacheStore::Open("/dev/full", kPlenty);
    EXPECT_FALSE(full->Write("key", "value"));
}

TEST_F(CacheStoreTest, twenty_players_write_at_once_and_some_are_killed)
{
    std::vector<pid_t> children;
    for (int player = 0; player < 20; ++player) {
        children.push_back(Fork([&] {
            const auto store = Open();
            const auto name = std::to_string(player);
            for (int i = 0; i < 50 || player % 4 == 0; ++i)
                store->Write(name + "." + std::to_string(i % 50), name);
        }));
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    for (std::size_t player = 0; player < children.size(); ++player) {
        if (player % 4 == 0)
            kill(children[player], SIGKILL);
        waitpid(children[player], nullptr, 0);
    }
    const auto store = Open();
    for (int player = 0; player < 20; ++player) {
        const auto name = std::to_string(player);
        for (int i = 0; i < 50; ++i)
            EXPECT_EQ(store->Read(name + "." + std::to_string(i)).value_or(name), name);
    }
    EXPECT_TRUE(store->Write("after", "all"));
}

} // namespace
} // namespace zentaro::platform
