#include "platform/AssociationShell.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace zentaro::platform {
namespace {

TEST(AssociationsOnWindows, the_short_path_is_this_program_without_blanks)
{
    const auto program = ShortProgramPath();
    EXPECT_EQ(program.find(' '), std::string::npos);
    char path[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    char longPath[MAX_PATH] = {};
    GetLongPathNameA(program.c_str(), longPath, MAX_PATH);
    EXPECT_STRCASEEQ(longPath, path);
}

TEST(AssociationsOnWindows, icons_of_programs_are_drawn_with_what_they_let_through)
{
    const auto icon = IconInFile("%SystemRoot%\\system32\\shell32.dll", 0);
    ASSERT_TRUE(icon);
    bool hasClear = false;
    bool hasSolid = false;
    for (std::int32_t i = 0; i < icon.Width() * icon.Height(); ++i) {
        hasClear = hasClear || icon.Pixels()[i] >> 24 == 0;
        hasSolid = hasSolid || icon.Pixels()[i] >> 24 == 255;
    }
    EXPECT_TRUE(hasClear && hasSolid);
    EXPECT_FALSE(IconInFile("C:\\missing.dll", 0));
    EXPECT_FALSE(IconInFile("%SystemRoot%\\system32\\shell32.dll", -1));
    EXPECT_FALSE(IconInFile("%SystemRoot%\\system32\\kernel32.dll", 0));
}

} // namespace
} // namespace zentaro::platform
