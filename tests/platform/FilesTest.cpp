#include "platform/Files.h"
#include "platform/Leftovers.h"
#include "tests/platform/HandOverFixture.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace zentaro::platform {
namespace {

std::ptrdiff_t CountOfFiles(const WorkingFolder& folder)
{
    const std::filesystem::directory_iterator files(folder.Path());
    return std::distance(begin(files), end(files));
}

TEST(Files, a_new_text_replaces_the_old_one_and_leaves_nothing_beside_it)
{
    const WorkingFolder folder;
    const auto path = folder / "Ä 日本.cfg";
    const std::string large(3'000'000, 'x');
    ASSERT_TRUE(ReplaceTextFile(path, large));
    EXPECT_EQ(ReadTextFile(path, 10'000'000), large);
    ASSERT_TRUE(ReplaceTextFile(path, std::string("a\r\n\0b", 5)));
    EXPECT_EQ(ReadTextFile(path, 5), std::string("a\r\n\0b", 5));
    EXPECT_EQ(ReadTextFile(path, 3), "a\r\n");
    EXPECT_EQ(CountOfFiles(folder), 1);
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(folder.Path()) / u8"Ä 日本.cfg"));
}

TEST(Files, what_cannot_be_read_or_replaced_is_told_from_what_is_missing_and_stays)
{
    const WorkingFolder folder;
    std::filesystem::create_directory(folder / "Config.cfg");
    EXPECT_EQ(ReadFileText(folder / "Config.cfg", 5).state, FileState::Unreadable);
    EXPECT_EQ(ReadTextFile(folder / "Config.cfg", 5), std::nullopt);
    const auto withNul = folder / std::string("a\0b", 3);
    for (const auto& missing : { folder / "missing", folder / "missing/Config.cfg", std::string(), withNul })
        EXPECT_EQ(ReadFileText(missing, 5).state, FileState::Missing) << missing;
    for (const auto& path : { folder / "Config.cfg", folder / "missing/Config.cfg", std::string(), withNul })
        EXPECT_FALSE(ReplaceTextFile(path, "text")) << path;
    EXPECT_EQ(CountOfFiles(folder), 1);
}

TEST(Files, what_killed_runs_left_is_removed_and_what_living_ones_have_stays)
{
    const WorkingFolder folder;
    const auto run = StartPeer({ "folder", folder / "name" });
    ASSERT_TRUE(RunUntil([&] { return PathExists(folder / "name"); }));
    const auto left = ReadTextFile(folder / "name", 1000).value();
    RemoveLeftovers(folder.Path());
    EXPECT_TRUE(PathExists(left));
    run->Terminate();
    ASSERT_TRUE(run->HasEnded(std::chrono::seconds(10)));
    ASSERT_TRUE(ReplaceTextFile(folder / ".zentaro-12", ""));
    ASSERT_TRUE(ReplaceTextFile(folder / "zentaro-12.tmp", ""));
    RemoveLeftovers(folder.Path());
    EXPECT_FALSE(PathExists(left));
    EXPECT_EQ(CountOfFiles(folder), 2); // the name, and the file that is none of ours on this system
}

} // namespace
} // namespace zentaro::platform
