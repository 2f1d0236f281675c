#include "assoc/ModAssoc.h"
#include "platform/AssociationShell.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace zentaro {
namespace {

constexpr auto kFileExts = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.zentarotest";

/// Types of a name that nobody else uses, in the real registry.
class RealAssociations : public testing::Test {
protected:
    ~RealAssociations() override
    {
        RegDeleteTreeA(HKEY_CLASSES_ROOT, ".zentarotest");
        RegDeleteTreeA(HKEY_CLASSES_ROOT, "ZentaroTest.x");
        RegDeleteTreeA(HKEY_CURRENT_USER, kFileExts);
    }

    static std::string Raw(HKEY root, const char* key, const char* name)
    {
        char text[1000] = {};
        DWORD size = sizeof text;
        const auto status = RegGetValueA(root, key, name, RRF_RT_REG_SZ, nullptr, text, &size);
        return status == ERROR_SUCCESS ? text : "missing";
    }

    std::unique_ptr<platform::StringStore> store = platform::StringStore::Open();
    std::string program = platform::ShortProgramPath();
    std::unique_ptr<platform::AssociationShell> shell = platform::AssociationShell::Open(program, "C:\\");
    ModAssoc types{ *store, *shell, program, "C:\\", '\\' };
};

TEST_F(RealAssociations, are_taken_and_released_where_a_shell_looks_for_them)
{
    ASSERT_TRUE(store->Write(platform::StringStore::Root::ClassesRoot, ".zentarotest", "", "Other.x"));
    types.RegisterVerb("ZentaroTest.x", "A test", "Add To Playlist", "C:\\icons\\x.ico", " *Add");
    types.TakeExtension(".zentarotest", "ZentaroTest.x");
    EXPECT_EQ(Raw(HKEY_CLASSES_ROOT, "ZentaroTest.x", nullptr), "A test");
    EXPECT_EQ(Raw(HKEY_CLASSES_ROOT, "ZentaroTest.x\\shell\\Add To Playlist\\command", nullptr), program + " %1 *Add");
    EXPECT_EQ(Raw(HKEY_CLASSES_ROOT, "ZentaroTest.x\\shell", nullptr), "");
    EXPECT_EQ(Raw(HKEY_CLASSES_ROOT, ".zentarotest", nullptr), "ZentaroTest.x");
    EXPECT_EQ(Raw(HKEY_CLASSES_ROOT, ".zentarotest", "OldAss"), "Other.x");
    EXPECT_EQ(Raw(HKEY_CURRENT_USER, kFileExts, "ProgID"), "ZentaroTest.x");
    types.ReleaseExtension(".zentarotest", "ZentaroTest.x");
    EXPECT_EQ(Raw(HKEY_CLASSES_ROOT, ".zentarotest", nullptr), "Other.x");
    EXPECT_EQ(Raw(HKEY_CLASSES_ROOT, ".zentarotest", "OldAss"), "missing");
    EXPECT_EQ(Raw(HKEY_CLASSES_ROOT, ".zentarotest", "OldProgID"), "Dummy");
    EXPECT_EQ(Raw(HKEY_CURRENT_USER, kFileExts, "OldProgID"), "");
}

TEST_F(RealAssociations, the_short_path_is_this_program_without_blanks)
{
    EXPECT_EQ(program.find(' '), std::string::npos);
    char path[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    char longPath[MAX_PATH] = {};
    GetLongPathNameA(program.c_str(), longPath, MAX_PATH);
    EXPECT_STRCASEEQ(longPath, path);
}

TEST(IconsOfPrograms, are_drawn_with_what_they_let_through)
{
    const auto icon = platform::IconInFile("%SystemRoot%\\system32\\shell32.dll", 0);
    ASSERT_TRUE(icon);
    bool hasClear = false;
    bool hasSolid = false;
    for (std::int32_t i = 0; i < icon.Width() * icon.Height(); ++i) {
        hasClear = hasClear || icon.Pixels()[i] >> 24 == 0;
        hasSolid = hasSolid || icon.Pixels()[i] >> 24 == 255;
    }
    EXPECT_TRUE(hasClear && hasSolid);
    EXPECT_FALSE(platform::IconInFile("C:\\missing.dll", 0));
    EXPECT_FALSE(platform::IconInFile("%SystemRoot%\\system32\\shell32.dll", -1));
    EXPECT_FALSE(platform::IconInFile("%SystemRoot%\\system32\\kernel32.dll", 0));
}

} // namespace
} // namespace zentaro
