#include "platform/Files.h"
#include "tests/platform/WorkingFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace zentaro::platform {
namespace {

std::size_t CountOfFiles(const WorkingFolder& folder)
{
    const std::filesystem::directory_iterator files(folder.Path());
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

TEST(TextFile, a_new_text_replaces_the_old_one_and_leaves_nothing_beside_it)
{
    const WorkingFolder folder;
    const auto path = folder / "Ä 日本.cfg";
    const std::string large(3'000'000, 'x');
    ASSERT_TRUE(ReplaceTextFile(path, large));
    EXPECT_EQ(ReadTextFile(path, 10'000'000), large);
    ASSERT_TRUE(ReplaceTextFile(path, std::string("a\r\n\0b", 5)));
    EXPECT_EQ(ReadTextFile(path, 100), std::string("a\r\n\0b", 5));
    EXPECT_EQ(CountOfFiles(folder), 1U);
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(folder.Path()) / u8"Ä 日本.cfg"));
}

TEST(TextFile, reading_stops_at_the_limit)
{
    const WorkingFolder folder;
    ASSERT_TRUE(ReplaceTextFile(folder / "a", "12345"));
    EXPECT_EQ(ReadTextFile(folder / "a", 3), "123");
    EXPECT_EQ(ReadTextFile(folder / "a", 5), "12345");
    EXPECT_EQ(ReadTextFile(folder / "missing", 5), std::nullopt);
    EXPECT_EQ(ReadTextFile(folder.Path(), 5), std::nullopt);
}

TEST(TextFile, what_cannot_be_replaced_stays_without_a_trace)
{
    const WorkingFolder folder;
    std::filesystem::create_directory(folder / "Config.cfg");
    EXPECT_FALSE(ReplaceTextFile(folder / "Config.cfg", "text"));
    EXPECT_FALSE(ReplaceTextFile(folder / "missing/Config.cfg", "text"));
    EXPECT_FALSE(ReplaceTextFile("", "text"));
    EXPECT_FALSE(ReplaceTextFile(folder / std::string("a\0b", 3), "text"));
    EXPECT_EQ(CountOfFiles(folder), 1U);
}

} // namespace
} // namespace zentaro::platform
