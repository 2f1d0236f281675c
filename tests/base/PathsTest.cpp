#include "base/Paths.h"

#include <gtest/gtest.h>

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
    EXPECT_FALSE(IsSupportedFile("/clips/a.txt", '/'));
    EXPECT_FALSE(IsSupportedFile("/clips.avi/readme", '/'));
    EXPECT_FALSE(IsSupportedFile("/clips/avi", '/'));
    EXPECT_FALSE(IsSupportedFile("/clips/a.", '/'));
    EXPECT_FALSE(IsSupportedFile("", '/'));
}
