#include "platform/Files.h"
#include "platform/RemovableDiscs.h"
#include "platform/StringStore.h"
#include "tests/platform/WorkingFolder.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace zentaro::platform {
namespace {

using Root = StringStore::Root;

class Registry : public testing::Test {
protected:
    ~Registry() override
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, top.c_str());
        RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\Classes\\.zentarotest");
    }

    /// What another program would find.
    static std::string Raw(HKEY root, const std::string& key, const char* name)
    {
        char text[100] = {};
        DWORD size = sizeof text;
        const auto status = RegGetValueA(root, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size);
        return status == ERROR_SUCCESS ? std::string(text, size) : "missing";
    }

    std::string title = "Zentaro Test " + std::to_string(GetCurrentProcessId());
    std::string top = "Software\\" + title;
    std::string key = SettingsKey(title, "Setting");
    std::unique_ptr<StringStore> store = StringStore::Open();
};

TEST_F(Registry, texts_of_any_language_and_length_lie_under_their_names_as_plain_strings)
{
    ASSERT_TRUE(store->Write(Root::CurrentUser, key, "txtHwnd", "65566"));
    ASSERT_TRUE(store->Write(Root::CurrentUser, key, "", "own value"));
    EXPECT_EQ(key, "Software\\" + title + "\\Setting");
    ASSERT_TRUE(store->Write(Root::ClassesRoot, ".zentarotest", "OldAss", "Other.x"));
    EXPECT_EQ(Raw(HKEY_CURRENT_USER, key, "txtHwnd"), std::string("65566\0", 6));
    EXPECT_EQ(Raw(HKEY_CURRENT_USER, key, nullptr), std::string("own value\0", 10));
    EXPECT_EQ(Raw(HKEY_CURRENT_USER, "Software\\Classes\\.zentarotest", "OldAss"), std::string("Other.x\0", 8));
    for (const auto& text : { std::string(), std::string("C:\\Clips\\Ä 日本 😀.avi"), std::string(255, 'x'),
             std::string(256, 'y'), std::string(20'000, 'z') }) {
        ASSERT_TRUE(store->Write(Root::CurrentUser, key, "Ä", text));
        EXPECT_EQ(store->Read(Root::CurrentUser, key, "Ä", "fallback"), text);
    }
}

TEST_F(Registry, what_is_missing_or_no_text_gives_the_fallback)
{
    const auto read = [&](const char* name) { return store->Read(Root::CurrentUser, key, name, "-1"); };
    EXPECT_EQ(read("txtHwnd"), "-1");
    EXPECT_TRUE(store->Delete(Root::CurrentUser, key, "txtHwnd"));
    ASSERT_TRUE(store->Write(Root::CurrentUser, key, "txtHwnd", "1"));
    EXPECT_TRUE(store->Delete(Root::CurrentUser, key, "txtHwnd"));
    EXPECT_TRUE(store->Delete(Root::CurrentUser, key, "txtHwnd"));
    const DWORD number = 7;
    RegSetKeyValueA(HKEY_CURRENT_USER, key.c_str(), "number", REG_DWORD, &number, sizeof number);
    RegSetKeyValueA(HKEY_CURRENT_USER, key.c_str(), "unended", REG_SZ, "abc", 3);
    EXPECT_EQ(read("txtHwnd") + read("number") + read("unended"), "-1-1abc");
}

TEST(FoldersOnWindows, an_absolute_path_has_a_drive_or_a_server)
{
    for (const auto* path : { "C:\\a.avi", "c:/a.avi", "\\\\server\\share", "\\\\?\\C:\\a" })
        EXPECT_TRUE(IsAbsolutePath(path)) << path;
    for (const auto* path : { "", "a.avi", "C:a.avi", "\\a.avi", "C:", "\\\\" })
        EXPECT_FALSE(IsAbsolutePath(path)) << path;
}

TEST(FoldersOnWindows, a_share_is_on_another_machine)
{
    for (const auto* path : { R"(\\host\films\a.avi)", R"(\\?\UNC\host\films\a.avi)", R"(\\?\unc\host\films\a.avi)" })
        EXPECT_TRUE(IsOnOtherMachine(path)) << path;
    for (const auto* path : { R"(C:\UNC\a.avi)", R"(\\?\C:\a.avi)", "a.avi" })
        EXPECT_FALSE(IsOnOtherMachine(path)) << path;
}

TEST(FoldersOnWindows, a_file_that_another_program_holds_is_not_missing)
{
    const WorkingFolder folder;
    const auto path = folder / "held.txt";
    ASSERT_TRUE(ReplaceTextFile(path, "text"));
    const HANDLE holder = CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(ReadFileText(path, 10).state, FileState::Unreadable);
    CloseHandle(holder);
    EXPECT_EQ(ReadFileText(path, 10).state, FileState::Readable);
}

TEST(Manifest, makes_utf8_the_code_page)
{
    EXPECT_EQ(GetACP(), UINT{ CP_UTF8 });
}

} // namespace
} // namespace zentaro::platform
