#include "platform/Files.h"
#include "platform/StringStore.h"
#include "tests/platform/PrivateUser.h"

namespace zentaro::platform {
namespace {

using Root = StringStore::Root;

class StoreOfFiles : public PrivateUser {
protected:
    std::string Read(const std::string& name, const std::string& key = "Software\\Test")
    {
        return store->Read(Root::CurrentUser, key, name, "-1");
    }
    bool Write(const std::string& name, const std::string& text, const std::string& key = "Software\\Test")
    {
        return bool(store->Write(Root::CurrentUser, key, name, text));
    }

    std::string path = folder / "XDG_DATA_HOME/zentaro/CurrentUser.ini";
    std::unique_ptr<StringStore> store = StringStore::Open();
};

TEST_F(StoreOfFiles, gives_back_every_text_byte_by_byte)
{
    const std::string texts[] = { "", "plain", " blanks at both ends ", "/clips/a, b; c=d.avi", "\"quoted\" \\x41 %20",
        "Ä 日本 😀", "@ByteArray(x)", "@Invalid()", "@String(x)", "line\r\nline\ttab", "/bad\xFF\xC3.avi",
        std::string("nul\0in", 6),
        "\xEF\xBB\xBF"
        "mark",
        std::string(100'000, 'x'), "-1", "true" };
    int number = 0;
    for (const auto& text : texts)
        ASSERT_TRUE(Write(std::to_string(number++), text)) << text;
    number = 0;
    for (const auto& text : texts)
        EXPECT_EQ(Read(std::to_string(number++)), text);
    // These two look alike as text.
    ASSERT_TRUE(Write("0", "\xFF") && Write("0", "\xEF\xBF\xBD"));
    EXPECT_EQ(Read("0"), "\xEF\xBF\xBD");
}

TEST_F(StoreOfFiles, keeps_keys_names_and_roots_apart)
{
    const std::pair<std::string, std::string> places[] = { { "", "" }, { "", "A" }, { "A", "" }, { "A", "_" },
        { "A", "_default" }, { "A", "default" }, { "A\\B", "" }, { "A", "B" }, { "A", "B\\" }, { "A\\", "B" },
        { "\\A", "B" }, { "A\\\\B", "C" }, { "A\\B", "C" }, { "A", "B\\C" }, { "A/B", "C" }, { "A_2FB", "C" },
        { "A", "B/C" }, { "A", "\xC3\xA4" }, { "A", "\xE4" }, { "A", std::string("\0", 1) }, { "a", "b" },
        { "General", "x" }, { "", "x" } };
    for (const auto& [key, name] : places)
        ASSERT_TRUE(Write(name, key + "+" + name, key));
    ASSERT_TRUE(store->Write(Root::ClassesRoot, "A", "B", "other root"));
    for (const auto& [key, name] : places)
        EXPECT_EQ(Read(name, key), key + "+" + name);
    EXPECT_NE(ReadTextFile(path, 10'000)->find("\nB\\C="), std::string::npos) << "a person can read it";
    for (const auto* key : { "A", "A", "missing" })
        EXPECT_TRUE(store->Delete(Root::CurrentUser, key, "B"));
    EXPECT_EQ(Read("B", "A") + Read("", "A\\B"), "-1A\\B+");
    EXPECT_EQ(store->Read(Root::ClassesRoot, "A", "B", ""), "other root");
}

TEST_F(StoreOfFiles, several_processes_write_and_see_at_once_what_the_others_wrote)
{
    // At once shown to others, though all are of one size and within one tick of the clock.
    for (int i = 100; i < 120; ++i) {
        WaitForProcess(StartProcess([&] { Write("txtHwnd", std::to_string(i)); }));
        ASSERT_EQ(Read("txtHwnd"), std::to_string(i));
    }
    pid_t writers[4];
    for (int w = 0; w < 4; ++w)
        writers[w] = StartProcess([&] {
            for (int i = 0; i < 10; ++i)
                Write(std::to_string(w) + "." + std::to_string(i), "here");
        });
    for (const auto writer : writers)
        WaitForProcess(writer);
    for (int w = 0; w < 4; ++w) {
        for (int i = 0; i < 10; ++i)
            EXPECT_EQ(Read(std::to_string(w) + "." + std::to_string(i)), "here") << w << "." << i;
    }
}

TEST_F(StoreOfFiles, survives_a_damaged_file_and_mends_it_with_the_next_write)
{
    ASSERT_TRUE(Write("first", std::string(50, 'a')));
    ASSERT_TRUE(Write("second", "/bad\xFF" + std::string(50, 'b')));
    const auto whole = ReadTextFile(path, 10'000).value();
    std::string noise(5000, '\0');
    for (std::size_t i = 0; i < noise.size(); ++i)
        noise[i] = static_cast<char>(i * i * 31 + i / 7);
    std::vector<std::string> damaged = { "", noise, "[Software\n", "=", "\xFF\xFE[" };
    for (std::size_t size = 0; size < whole.size(); size += 11)
        damaged.push_back(whole.substr(0, size));
    for (const auto& text : damaged) {
        ASSERT_TRUE(ReplaceTextFile(path, text));
        Read("second");
        EXPECT_EQ(Read("third"), "-1");
        ASSERT_TRUE(Write("new", "value")) << text;
        EXPECT_EQ(Read("new"), "value") << text;
    }
    // A person has edited it.
    ASSERT_TRUE(ReplaceTextFile(path, "[Software]\nTest\\list=/clips/a, b.avi\nTest\\number=42\n"));
    EXPECT_EQ(Read("list") + Read("number"), "/clips/a, b.avi42");
}

TEST_F(StoreOfFiles, says_so_when_it_cannot_write)
{
    std::filesystem::create_directories(path);
    EXPECT_FALSE(Write("name", "text"));
    EXPECT_EQ(Read("name"), "-1");
    EXPECT_TRUE(store->Delete(Root::CurrentUser, "Software\\Test", "name"));
    std::filesystem::remove(path);
    ASSERT_TRUE(Write("name", "text"));
    if (geteuid() == 0)
        GTEST_SKIP() << "every file is writable to the administrator";
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    EXPECT_FALSE(Write("name", "other"));
    EXPECT_FALSE(store->Delete(Root::CurrentUser, "Software\\Test", "name"));
    EXPECT_EQ(Read("name"), "text");
    // Unreadable for a moment, and no empty file for that.
    std::filesystem::permissions(path, std::filesystem::perms::owner_write);
    EXPECT_FALSE(Write("other", "text"));
    store->BeginBatch();
    EXPECT_FALSE(Write("other", "text"));
    store->DropBatch();
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    EXPECT_EQ(Read("name"), "text");
    const auto parent = std::filesystem::path(path).parent_path();
    std::filesystem::permissions(parent, std::filesystem::perms::owner_write, std::filesystem::perm_options::remove);
    EXPECT_FALSE(Write("name", "other"));
    EXPECT_EQ(Read("name"), "text");
    std::filesystem::permissions(parent, std::filesystem::perms::owner_all);
    EXPECT_TRUE(Write("name", "other"));
}

TEST_F(StoreOfFiles, a_batch_is_written_whole_or_not_at_all)
{
    ASSERT_TRUE(Write("old", "1", "A"));
    ASSERT_TRUE(Write("", "below", "A\\old"));
    const auto others = StringStore::Open();
    for (const bool commit : { false, true }) {
        store->BeginBatch();
        EXPECT_TRUE(Write("new", "2", "A"));
        EXPECT_TRUE(store->Write(Root::ClassesRoot, ".avi", "", "x"));
        EXPECT_TRUE(store->Delete(Root::CurrentUser, "A", "old"));
        EXPECT_EQ(Read("new", "A") + Read("old", "A") + Read("", "A\\old"), "2-1below");
        EXPECT_EQ(others->Read(Root::CurrentUser, "A", "old", ""), "1");
        if (commit)
            EXPECT_TRUE(store->CommitBatch());
        else
            store->DropBatch();
        const std::string expected = commit ? "2-1x" : "-11";
        EXPECT_EQ(Read("new", "A") + Read("old", "A") + others->Read(Root::ClassesRoot, ".avi", "", ""), expected);
        EXPECT_EQ(Read("", "A\\old"), "below");
    }
}

} // namespace
} // namespace zentaro::platform
