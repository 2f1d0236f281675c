#include "playlist/DroppedFiles.h"
#include "tests/platform/WorkingFolder.h"

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

namespace zentaro {
namespace {

namespace fs = std::filesystem;

constexpr char kSeparator = static_cast<char>(fs::path::preferred_separator);

TEST(NaturalLessTest, NumbersCountByValueAndLettersWithoutCase)
{
    // Every name comes before all that follow it. Zeros in front count only where nothing else differs.
    const std::vector<std::string> names{ "0", "00", "2", "007", "010", "10", "a 2", "a.avi", "a01", "a1", "a1.avi",
        "a01b", "A2.avi", "a02.avi", "a9", "a010", "a99999999999999999999.avi", "b.avi", "b1c2", "b1c10",
        "\xC3\xA4.avi" };
    for (std::size_t i = 0; i < names.size(); ++i) {
        for (std::size_t k = 0; k < names.size(); ++k)
            EXPECT_EQ(NaturalLess(names[i], names[k]), i < k) << names[i] << " and " << names[k];
    }
}

class DroppedFilesTest : public testing::Test {
protected:
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
    const platform::WorkingFolder folder;
    const fs::path root{ folder.Path() };
};

TEST_F(DroppedFilesTest, FilesStayInTheirOrderAndFoldersUnfoldNaturally)
{
    const auto z = Make("z.mkv");
    for (const auto* const name :
        { "clip10.avi", "CLIP2.AVI", "notes.txt", "Disc 10/a.mp3", "Disc 2.mkv/a.mp3", "none" })
        Make("folder/" + std::string(name));
    const auto gone = Path("gone.avi");
    const std::vector dropped{ z, Make("cover.jpg"), Path("folder"), gone };
    EXPECT_EQ(Drop(dropped),
        (std::vector{ z, Path("folder/CLIP2.AVI"), Path("folder/clip10.avi"), Path("folder/Disc 2.mkv/a.mp3"),
            Path("folder/Disc 10/a.mp3"), gone }));
    EXPECT_EQ(DroppedMediaFiles(dropped, kSeparator, [] { return false; }), (std::vector{ z })) << "stopped";
}

TEST_F(DroppedFilesTest, LinksThatLeadBackAndMissingNamesEndAndOddBytesSurvive)
{
    // On Windows names are UTF-16.
    const auto a = Make(kSeparator == '\\' ? "folder/a.avi" : "folder/odd\xFF.avi");
    std::error_code unsupported;
    fs::create_directory_symlink(root / "folder", root / "folder" / "again", unsupported);
    fs::create_directory_symlink("self", root / "folder" / "self", unsupported);
    EXPECT_EQ(Drop({ Path("folder"), Path("missing") }), (std::vector{ a }));
}

} // namespace
} // namespace zentaro
