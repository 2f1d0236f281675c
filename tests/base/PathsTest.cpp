#include "base/Paths.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace zentaro;

TEST(Paths, the_file_name_is_what_follows_the_last_separator_of_the_system)
{
    EXPECT_EQ(FileNamePart("C:\\Clips\\a.avi", '\\'), "a.avi");
    EXPECT_EQ(FileNamePart("/clips/back\\slash.avi", '/'), "back\\slash.avi");
    EXPECT_EQ(FileNamePart("a.avi", '/'), "a.avi");
    EXPECT_EQ(FileNamePart("/clips/", '/'), "");
}

TEST(Paths, a_folder_gets_one_separator)
{
    EXPECT_EQ(WithTrailingSeparator("C:", '\\'), "C:\\");
    EXPECT_EQ(WithTrailingSeparator("/opt/", '/'), "/opt/");
}

TEST(Paths, a_media_file_is_known_by_its_extension_in_any_letter_case)
{
    for (const auto extension : kMediaExtensions)
        EXPECT_TRUE(IsSupportedFile("/clips/a." + std::string(extension), '/')) << extension;
    EXPECT_TRUE(IsSupportedFile("C:\\Clips\\A.HdMov", '\\'));
    EXPECT_TRUE(IsSupportedFile("/clips/Film.2020.mkv", '/'));
    EXPECT_FALSE(IsSupportedFile("/clips/a.txt", '/'));
    EXPECT_FALSE(IsSupportedFile("/clips.avi/readme", '/'));
    EXPECT_FALSE(IsSupportedFile("/clips/avi", '/'));
    EXPECT_FALSE(IsSupportedFile("/clips/a.", '/'));
    EXPECT_FALSE(IsSupportedFile("", '/'));
}

TEST(Paths, a_tidy_path_names_the_same_file_or_stays)
{
    namespace fs = std::filesystem;
    const auto folder = fs::temp_directory_path() / "zentaro-tidy";
    fs::remove_all(folder);
    fs::create_directories(folder / "a" / "b");
    std::ofstream(folder / "a" / "clip.avi") << "x";
    const auto clip = (folder / "a" / "clip.avi").string();
    EXPECT_EQ(TidyPath((folder / "a" / "." / "b" / ".." / "clip.avi").string()), clip);
    EXPECT_EQ(TidyPath(clip), clip);
    EXPECT_EQ(WholePath(clip + " späte 日本.avi"), clip + " späte 日本.avi");
    const auto missing = (folder / "a" / ".." / "none.avi").string();
    EXPECT_EQ(TidyPath(missing), missing);
    std::error_code error;
    fs::create_directory_symlink(folder / "a" / "b", folder / "link", error);
    if (!error) {
        const auto behind = (folder / "link" / ".." / "clip.avi").string(); // lies in a, not beside the link
        EXPECT_EQ(TidyPath(behind), behind);
    }
    fs::remove_all(folder);
}
