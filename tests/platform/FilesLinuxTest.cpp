#include "platform/Files.h"
#include "platform/Files_linux.h"
#include "tests/platform/PrivateUser.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace zentaro::platform {
namespace {

namespace fs = std::filesystem;

TEST(TextFileOnLinux, a_pipe_or_device_is_neither_read_nor_replaced_nor_waited_for)
{
    const WorkingFolder folder;
    const auto pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(ReadTextFile(pipe, 10), std::nullopt);
    EXPECT_EQ(ReadTextFile("/dev/zero", 10), std::nullopt);
    EXPECT_FALSE(ReplaceTextFile(pipe, "text"));
    EXPECT_FALSE(MayWriteFile(pipe));
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST(TextFileOnLinux, what_a_link_names_is_replaced_even_when_it_is_not_there_yet)
{
    const WorkingFolder folder;
    fs::create_directory(folder / "real");
    fs::create_symlink("real/a.cfg", folder / "relative.cfg");
    fs::create_symlink(folder / "relative.cfg", folder / "absolute.cfg");
    ASSERT_TRUE(ReplaceTextFile(folder / "absolute.cfg", "new"));
    EXPECT_EQ(ReadTextFile(folder / "real/a.cfg", 10), "new");
    EXPECT_TRUE(fs::is_symlink(folder / "absolute.cfg") && fs::is_symlink(folder / "relative.cfg"));
    fs::create_symlink("loop", folder / "loop");
    EXPECT_FALSE(ReplaceTextFile(folder / "loop", "new"));
}

TEST(TextFileOnLinux, the_permission_bits_stay)
{
    const WorkingFolder folder;
    const auto path = folder / "a\xFF.cfg";
    ASSERT_TRUE(ReplaceTextFile(path, "old"));
    fs::permissions(path, static_cast<fs::perms>(0640));
    ASSERT_TRUE(ReplaceTextFile(path, "new"));
    EXPECT_EQ(fs::status(path).permissions(), static_cast<fs::perms>(0640));
}

TEST(TextFileOnLinux, a_reader_never_sees_a_part)
{
    const WorkingFolder folder;
    const auto path = folder / "a.cfg";
    ASSERT_TRUE(ReplaceTextFile(path, std::string(100'000, 'a')));
    const auto writer = StartProcess([&] {
        for (int i = 0;; ++i)
            IgnoreFailure(ReplaceTextFile(path, std::string(100'000, i % 2 == 0 ? 'b' : 'a')));
    });
    for (int i = 0; i < 200; ++i) {
        const auto text = ReadTextFile(path, 200'000);
        ASSERT_TRUE(text && *text == std::string(100'000, text->front()));
    }
    kill(writer, SIGKILL);
    WaitForProcess(writer);
}

using FoldersOnLinux = PrivateUser;

TEST_F(FoldersOnLinux, a_relative_argument_that_exists_becomes_absolute_with_its_bytes_and_links)
{
    const auto before = fs::current_path();
    fs::create_directory(folder / "real");
    fs::create_directory_symlink("real", folder / "link");
    ASSERT_TRUE(ReplaceTextFile(folder / "real/a \xFF.avi", ""));
    fs::current_path(folder.Path());
    EXPECT_EQ(CommandLineText({ "link/a \xFF.avi" }), folder / "link/a \xFF.avi");
    EXPECT_EQ(CommandLineText({ "link/a \xFF.avi", "*Add" }), folder / "link/a \xFF.avi *Add");
    EXPECT_EQ(CommandLineText({ "missing.avi" }), "missing.avi");
    EXPECT_EQ(CommandLineText({ "/tmp" }), "/tmp");
    EXPECT_EQ(CommandLineText({ "" }), "");
    fs::current_path(before);
}

TEST_F(FoldersOnLinux, the_runtime_folder_must_be_ours_alone)
{
    EXPECT_TRUE(IsPrivateFolder(1000, 040700, 1000));
    EXPECT_FALSE(IsPrivateFolder(1001, 040700, 1000));
    EXPECT_FALSE(IsPrivateFolder(1000, 040710, 1000));
    EXPECT_FALSE(IsPrivateFolder(1000, 040707, 1000));

    EXPECT_TRUE(OpenRuntimeFolder());
    fs::permissions(InRuntimeFolder(""), fs::perms::group_read, fs::perm_options::add);
    EXPECT_FALSE(OpenRuntimeFolder());
    fs::remove(InRuntimeFolder(""));
    fs::create_directory_symlink(folder.Path(), folder / "XDG_RUNTIME_DIR/zentaro");
    EXPECT_FALSE(OpenRuntimeFolder());
}

} // namespace
} // namespace zentaro::platform
