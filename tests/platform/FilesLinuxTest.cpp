#include "platform/Files.h"
#include "platform/Files_linux.h"
#include "platform/Leftovers.h"
#include "tests/platform/PrivateUser.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace zentaro::platform {
namespace {

namespace fs = std::filesystem;

using FilesOnLinux = PrivateUser;

TEST_F(FilesOnLinux, a_pipe_or_device_is_neither_read_nor_replaced_nor_waited_for)
{
    const auto pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(ReadFileText(pipe, 10).state, FileState::Unreadable);
    EXPECT_EQ(ReadFileText("/dev/zero", 10).state, FileState::Unreadable);
    EXPECT_FALSE(ReplaceTextFile(pipe, "text"));
    EXPECT_FALSE(MayWriteFile(pipe));
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(FilesOnLinux, a_file_without_the_right_or_with_a_failing_disk_is_not_missing)
{
    // The kernel refuses to read at address 0 of a process, as a broken disk refuses its blocks.
    EXPECT_EQ(ReadFileText("/proc/self/mem", 10).state, FileState::Unreadable);
    ASSERT_TRUE(ReplaceTextFile(folder / "a.cfg", "text"));
    EXPECT_EQ(ReadFileText(folder / "a.cfg/below", 10).state, FileState::Missing);
    if (geteuid() == 0)
        GTEST_SKIP() << "the administrator may read everything";
    fs::permissions(folder / "a.cfg", fs::perms::none);
    EXPECT_EQ(ReadFileText(folder / "a.cfg", 10).state, FileState::Unreadable);
}

TEST_F(FilesOnLinux, what_a_link_names_is_replaced_and_keeps_its_rights)
{
    fs::create_directory(folder / "real");
    fs::create_symlink("real/a\xFF.cfg", folder / "relative.cfg");
    fs::create_symlink(folder / "relative.cfg", folder / "absolute.cfg");
    ASSERT_TRUE(ReplaceTextFile(folder / "absolute.cfg", "old"));
    fs::permissions(folder / "real/a\xFF.cfg", static_cast<fs::perms>(0640));
    ASSERT_TRUE(ReplaceTextFile(folder / "absolute.cfg", "new"));
    EXPECT_EQ(ReadTextFile(folder / "real/a\xFF.cfg", 10), "new");
    EXPECT_EQ(fs::status(folder / "real/a\xFF.cfg").permissions(), static_cast<fs::perms>(0640));
    EXPECT_TRUE(fs::is_symlink(folder / "absolute.cfg") && fs::is_symlink(folder / "relative.cfg"));
    fs::create_symlink("loop", folder / "loop");
    EXPECT_FALSE(ReplaceTextFile(folder / "loop", "new"));
}

TEST_F(FilesOnLinux, a_reader_never_sees_a_part_and_a_writer_that_lives_is_not_tidied_away)
{
    const auto path = folder / "a.cfg";
    ASSERT_TRUE(ReplaceTextFile(path, std::string(100'000, 'a')));
    const auto writer = StartProcess([&] {
        for (int i = 0; ReplaceTextFile(path, std::string(100'000, i % 2 == 0 ? 'b' : 'a')); ++i) { }
    });
    for (int i = 0; i < 200; ++i) {
        const auto text = ReadTextFile(path, 200'000);
        ASSERT_TRUE(text && *text == std::string(100'000, text->front()));
        RemoveLeftovers(folder.Path());
    }
    kill(writer, SIGKILL);
    EXPECT_TRUE(WIFSIGNALED(WaitForProcess(writer)));
}

TEST_F(FilesOnLinux, a_full_disk_leaves_the_old_text_and_nothing_beside_it)
{
    ASSERT_TRUE(ReplaceTextFile(folder / "a.cfg", "old"));
    const auto files = [&] { return std::distance(fs::directory_iterator(folder.Path()), {}); };
    const auto before = files();
    WaitForProcess(StartProcess([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit few{ 1000, 1000 };
        setrlimit(RLIMIT_FSIZE, &few);
        IgnoreFailure(ReplaceTextFile(folder / "a.cfg", std::string(5000, 'x')));
    }));
    EXPECT_EQ(ReadTextFile(folder / "a.cfg", 10), "old");
    EXPECT_EQ(files(), before);
}

TEST_F(FilesOnLinux, only_what_is_ours_by_name_and_kind_counts_as_left_over)
{
    setenv("TMPDIR", folder.Path().c_str(), 1);
    for (const auto* const name : { ".zentaro-x", ".zentaro-", "zentaro-run-abcdef" })
        ASSERT_TRUE(ReplaceTextFile(folder / name, ""));
    for (const auto* const name : { ".zentaro-34", "zentaro-run-abc", "zentaro-1000" })
        fs::create_directory(folder / name);
    fs::create_directory_symlink(MakeWorkingFolder(), folder / "zentaro-run-linkto");
    const auto count = [&] { return std::distance(fs::directory_iterator(folder.Path()), {}); };
    const auto before = count();
    RemoveLeftovers(folder.Path());
    EXPECT_EQ(count(), before);
    unsetenv("TMPDIR");
}

TEST_F(FilesOnLinux, the_runtime_folder_must_be_ours_alone)
{
    EXPECT_TRUE(IsPrivateFolder(1000, 040700, 1000));
    EXPECT_FALSE(IsPrivateFolder(1001, 040700, 1000));
    EXPECT_FALSE(IsPrivateFolder(1000, 040707, 1000));
    EXPECT_TRUE(OpenRuntimeFolder());
    fs::permissions(InRuntimeFolder(""), fs::perms::group_exec, fs::perm_options::add);
    EXPECT_FALSE(OpenRuntimeFolder());
    fs::remove(InRuntimeFolder(""));
    fs::create_directory_symlink(folder.Path(), folder / "XDG_RUNTIME_DIR/zentaro");
    EXPECT_FALSE(OpenRuntimeFolder());
}

} // namespace
} // namespace zentaro::platform
