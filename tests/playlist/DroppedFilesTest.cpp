#include "playlist/DroppedFiles.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>

#include <gtest/gtest.h>

namespace zentaro {
namespace {

namespace fs = std::filesystem;

constexpr char kSeparator = static_cast<char>(fs::path::preferred_separator);

TEST(NaturalLessTest, NumbersCountByValueAndLettersWithoutCase)
{
    std::vector<std::string> names{ "b.avi", "a10.avi", "A2.avi", "a1.avi", "a.avi", "a 2", "a02.avi",
        "a99999999999999999999.avi", "\xC3\xA4.avi" };
    std::sort(names.begin(), names.end(), NaturalLess);
    EXPECT_EQ(names,
        (std::vector<std::string>{ "a 2", "a.avi", "a1.avi", "A2.avi", "a02.avi", "a10.avi",
            "a99999999999999999999.avi", "b.avi", "\xC3\xA4.avi" }));
    EXPECT_FALSE(NaturalLess("a1", "a1"));
}

class DroppedFilesTest : public testing::Test {
protected:
    DroppedFilesTest()
        : root(fs::temp_directory_path() / ("zentaro-drop-" + std::to_string(std::random_device()())))
    {
        fs::create_directory(root);
    }
    ~DroppedFilesTest() override { fs::remove_all(root); }
    std::string Make(const std::string& name)
    {
        const auto path = (root / name).make_preferred();
        fs::create_directories(path.parent_path());
        std::ofstream(path) << "x";
        return path.string();
    }
    std::string Path(const std::string& name) const { return (root / name).make_preferred().string(); }
    static std::vector<std::string> Drop(const std::vector<std::string>& paths)
    {
        return DroppedMediaFiles(paths, kSeparator, [] { return true; });
    }
    fs::path root;
};

TEST_F(DroppedFilesTest, FilesStayInTheirOrderAndFoldersUnfoldNaturally)
{
    const auto z = Make("z.mkv");
    Make("folder/clip10.avi");
    Make("folder/CLIP2.AVI");
    Make("folder/notes.txt");
    Make("folder/Disc 2/a.mp3");
    Make("folder/Disc 1.mkv/a.mp3");
    Make("folder/noextension");
    const auto gone = Path("gone.avi");
    EXPECT_EQ(Drop({ z, Make("cover.jpg"), Path("folder"), gone }),
        (std::vector{ z, Path("folder/CLIP2.AVI"), Path("folder/clip10.avi"), Path("folder/Disc 1.mkv/a.mp3"),
            Path("folder/Disc 2/a.mp3"), gone }));
}

TEST_F(DroppedFilesTest, LinksThatLeadBackEndAndStoppingKeepsWhatWasRead)
{
    const auto a = Make("folder/a.avi");
    std::error_code unsupported;
    fs::create_directory_symlink(root / "folder", root / "folder" / "again", unsupported);
    fs::create_directory_symlink("self", root / "folder" / "self", unsupported);
    EXPECT_EQ(Drop({ Path("folder"), Path("missing") }), (std::vector{ a }));
    EXPECT_EQ(DroppedMediaFiles({ a, Path("folder") }, kSeparator, [] { return false; }), (std::vector{ a }));
}

TEST_F(DroppedFilesTest, BytesThatAreNoUtf8Survive)
{
    if (kSeparator == '\\')
        GTEST_SKIP() << "names are UTF-16 there";
    const auto odd = Make("folder/odd\xFF.avi");
    EXPECT_EQ(Drop({ Path("folder") }), (std::vector{ odd }));
}

TEST(AddRequestsTest, OnlyTheFirstOneCanPlay)
{
    const auto requests = AddRequests({ "/v/a.avi", "/v/b.avi" }, '/', true);
    EXPECT_EQ(requests[0].title, "a.avi");
    EXPECT_TRUE(requests[0].playNow);
    EXPECT_FALSE(requests[1].playNow);
}

} // namespace
} // namespace zentaro
