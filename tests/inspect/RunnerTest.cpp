#include "inspect/ModPipes.h"
#include "tests/platform/WorkingFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <fstream>
#include <sstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <tuple>
#include <unistd.h>

using namespace zentaro;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace {

// Far below what the tools would take, and far above what a crowded machine adds.
constexpr std::chrono::seconds kAtOnce{ 50 };

using Clock = std::chrono::steady_clock;

/// True once the condition holds, at the latest after the time that a test may lose on a busy machine.
bool Eventually(const std::function<bool()>& condition)
{
    for (const auto end = Clock::now() + 5s; !condition(); std::this_thread::sleep_for(2ms)) {
        if (Clock::now() > end)
            return false;
    }
    return true;
}

/// Whether `count` processes, named by their numbers, have all ended; who waits for whose end does not matter.
bool AreGone(const std::string& numbers, int count)
{
    std::istringstream list(numbers);
    for (std::string number; list >> number; --count) {
        const auto isGone = [&] {
            const auto stat = platform::ReadTextFile("/proc/" + number + "/stat", 1000).value_or(") Z");
            return stat[stat.rfind(')') + 2] == 'Z';
        };
        if (!Eventually(isGone))
            return false;
    }
    return count == 0;
}

std::ptrdiff_t OpenDescriptors()
{
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

bool HasChildren()
{
    siginfo_t info{};
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
}

class Runner : public testing::Test {
protected:
    Runner() { context.programFolder = m_folder.Path(); }

    std::string Path(const std::string& name) const { return m_folder / name; }
    std::string Content(const std::string& name) const
    {
        return platform::ReadTextFile(Path(name), 1'000'000'000).value_or("missing");
    }
    std::string WriteScript(const std::string& name, const std::string& text, bool executable = true) const
    {
        IgnoreFailure(platform::ReplaceTextFile(Path(name), text));
        fs::permissions(Path(name), executable ? fs::perms::owner_all : fs::perms::owner_read);
        return Path(name);
    }
    Result<void> Run(const ToolCommand& command, const std::string& workDir = "", std::int32_t priority = 2)
    {
        return ExecuteAndCapture(command, Path("log"), 0, false, priority, workDir, context);
    }
    static ToolCommand Shell(const std::string& text) { return { "/bin/sh", { "-c", text, "tool" }, "sh" }; }
    /// Runs shell text as a tool; the log's content after the first line.
    std::string Printed(const std::string& shellText, const std::vector<std::string>& arguments = {},
        const std::string& workDir = "", std::int32_t priority = 2)
    {
        auto command = Shell(shellText);
        command.arguments.insert(command.arguments.end(), arguments.begin(), arguments.end());
        const auto result = Run(command, workDir, priority);
        EXPECT_TRUE(result) << result.error().text;
        const auto log = Content("log");
        EXPECT_EQ(log.substr(0, 3), "sh\n");
        return log.substr(std::min<std::size_t>(3, log.size()));
    }
    /// What the tool printed until it was cancelled: once it has made the file "ready" in its folder.
    std::string PrintedUntilReady(const std::string& shellText)
    {
        fs::remove(Path("ready"));
        context.pumpMessages = [this] { context.CancelExecute = fs::exists(Path("ready")) ? -1 : 0; };
        const auto start = Clock::now();
        auto printed = Printed(shellText, {}, m_folder.Path());
        EXPECT_LT(Clock::now() - start, kAtOnce);
        return printed;
    }

    ToolContext context;
    const platform::WorkingFolder m_folder;
};

} // namespace

TEST_F(Runner, the_log_holds_the_text_and_then_the_bytes_of_both_streams)
{
    EXPECT_EQ(Printed("printf 'a\\r\\n\\000'; printf b >&2; printf 'c\\n'"), std::string("a\r\n\0bc\n", 7));
    EXPECT_EQ(Printed(":"), "");
    EXPECT_EQ(Printed("(sleep 0.2; echo late) & echo early"), "early\nlate\n"); // of a process left behind
    EXPECT_EQ(Printed("echo before; kill -SEGV $$; echo after"), "before\n");
    // Who has its children reaped by the system can run tools too.
    const auto earlier = std::signal(SIGCHLD, SIG_IGN);
    EXPECT_EQ(Printed("echo x; sleep 0.05; echo y"), "x\ny\n");
    std::signal(SIGCHLD, earlier);
    // The shell's name makes the shell the program.
    const ToolCommand command{ "tool", { "-c", "echo $0 $1", "a", "b" }, "t" };
    EXPECT_TRUE(ExecuteAndCapture(command, Path("log"), 0, true, 2, "", context));
    EXPECT_EQ(Content("log"), "t\na b\n");
    EXPECT_TRUE(Run({ "head", { "-c", "100000000", "/dev/zero" }, "" }));
    EXPECT_EQ(fs::file_size(Path("log")), 100'000'001u);

    std::string converted;
    context.convertOutput = [&](std::int32_t mode, std::string_view text) {
        converted += std::to_string(mode).append(text);
    };
    for (const std::int32_t mode : { 0, 1, 3, 4 })
        EXPECT_TRUE(ExecuteAndCapture({ "echo", { "x" }, "" }, Path("log"), mode, false, 2, "", context));
    EXPECT_EQ(converted, "1x\n3x\n"); // those between 1 and 3 alone
}

TEST_F(Runner, a_child_sees_its_arguments_unchanged_and_nothing_else_of_this_process)
{
    EXPECT_EQ(Printed("printf '[%s]' \"$@\"", { "a \"b\" 'c'", "$HOME `id` *", "", "-n\n", "\xFF\xFE.avi" }),
        "[a \"b\" 'c'][$HOME `id` *][][-n\n][\xFF\xFE.avi]");
    const int inheritable = ::dup(STDERR_FILENO); // without the close-on-exec flag
    EXPECT_EQ(Printed("cd /proc/self/fd; echo *; read line || echo empty"), "0 1 2 3\nempty\n"); // 3 is echo's own
    ::close(inheritable);
    const auto earlier = std::signal(SIGPIPE, SIG_IGN);
    EXPECT_EQ(Printed("kill -PIPE $$; echo 'still there'"), "");
    std::signal(SIGPIPE, earlier);

    EXPECT_EQ(Printed("pwd -P", {}, m_folder.Path()), fs::canonical(m_folder.Path()).string() + '\n');
    EXPECT_EQ(Printed("pwd -P"), fs::current_path().string() + '\n');
    // A relative program stays relative to this process's folder.
    const auto tool = WriteScript("tool", "#!/bin/sh\necho here\n");
    EXPECT_TRUE(Run({ fs::relative(tool).string(), {}, "t" }, "/"));
    EXPECT_EQ(Content("log"), "t\nhere\n");
}

TEST_F(Runner, messages_are_pumped_while_a_tool_is_silent_or_has_closed_its_output)
{
    for (const char* tool : { "sleep 0.3; echo end", "echo end; exec >/dev/null 2>&1; sleep 0.3" }) {
        int pumps = 0;
        context.pumpMessages = [&] { ++pumps; };
        EXPECT_EQ(Printed(tool), "end\n");
        EXPECT_GE(pumps, 6);
        EXPECT_LT(pumps, 50) << "the wait is a busy loop";
    }
}

TEST_F(Runner, a_tool_that_cannot_be_started_is_error_2003_with_the_systems_code)
{
    WriteScript("log", "earlier");
    const std::tuple<std::string, std::string, int> rows[] = {
        { Path("missing"), "", ENOENT },
        { "zentaro-no-such-tool", "", ENOENT },
        { "/bin/sh", Path("missing"), ENOENT },
        { m_folder.Path(), "", EACCES },
        { WriteScript("plain", "#!/bin/sh\n", false), "", EACCES },
        { WriteScript("nonsense", "nonsense"), "", ENOEXEC },
    };
    for (const auto& [program, workDir, code] : rows) {
        const auto result = Run({ program, {}, "t" }, workDir);
        const Error expected{ 2003, "Could not create piped process. LastError " + std::to_string(code) };
        EXPECT_EQ(result ? Error{} : result.error(), expected);
    }
    EXPECT_EQ(Content("log"), "earlier");
}

TEST_F(Runner, without_a_pipe_or_a_log_there_is_an_error_and_no_tool)
{
    rlimit limit{};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    rlimit none = limit;
    none.rlim_cur = 3;
    ::setrlimit(RLIMIT_NOFILE, &none);
    const auto result = Run({ "true", {}, "t" });
    ::setrlimit(RLIMIT_NOFILE, &limit);
    const Error expected{ 2001, "Could not create pipe LastError " + std::to_string(EMFILE) };
    EXPECT_EQ(result ? Error{} : result.error(), expected);
    for (const auto& [log, code] : { std::pair(Path("no/log"), ENOENT), std::pair(std::string("/dev/full"), ENOSPC) }) {
        const auto failed = ExecuteAndCapture({ "echo", { "x" }, "t" }, log, 0, false, 2, "", context);
        EXPECT_EQ(failed ? 0 : failed.error().number, code) << log;
    }
    std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &limit);
    none = limit;
    none.rlim_cur = 5000;
    ::setrlimit(RLIMIT_FSIZE, &none);
    const auto cutShort = Run({ "head", { "-c", "9999", "/dev/zero" }, "t" });
    EXPECT_EQ(cutShort ? 0 : cutShort.error().number, EFBIG);
    ::setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_FALSE(HasChildren());
}

TEST_F(Runner, a_limit_ends_who_is_silent_or_goes_on_for_too_long_with_all_children)
{
    const std::string stubborn = "trap '' TERM; echo $$; sh -c 'echo $$; sleep 100'; sleep 100";
    const std::tuple<std::string, RunLimit, int> rows[] = {
        { stubborn, { .silence = 1s }, 2 }, { "echo $$; while sleep 0.05; do echo; done", { .total = 500ms }, 1 },
        { "exec sh -c 'echo $$; exec sleep 100' &", { .silence = 1s }, 1 }, // it still holds the stream
    };
    for (const auto& [text, limit, count] : rows) {
        auto command = Shell(text);
        command.limit = limit;
        const auto result = Run(command);
        EXPECT_EQ(result ? 0 : result.error().number, kToolHangs) << text;
        EXPECT_TRUE(AreGone(Content("log").substr(3), count)) << text;
    }
    auto slow = Shell("for i in 1 2 3 4; do echo; sleep 0.6; done");
    slow.limit.silence = 2s;
    EXPECT_TRUE(Run(slow));
    auto shown = Shell(stubborn);
    shown.limit.total = 500ms;
    EXPECT_FALSE(ShellExecuteAndWait(shown, 0, true, true, context));
    EXPECT_FALSE(HasChildren());
    EXPECT_FALSE(platform::ShellStart({ "/bin/sleep", { "100" }, "", 0, false })->HasEnded(-1ms)); // not for ever
}

TEST_F(Runner, a_cancel_ends_a_stubborn_tool_with_its_group_and_waits_for_nobody_else)
{
    const auto numbers =
        PrintedUntilReady("trap '' TERM INT HUP; (trap '' TERM; echo $$; sh -c 'echo $PPID $$; touch ready; "
                          "sleep 100'); sleep 100")
        + PrintedUntilReady("sh -c 'echo $$; sleep 0.1; touch ready; exec sleep 100' &");
    EXPECT_TRUE(AreGone(numbers, 4)) << numbers;
    PrintedUntilReady("setsid sh -c 'touch ready; exec sleep 60' & wait"); // it outlives the cancel, and ends by itself

    std::thread canceller([&] {
        Eventually([&] { return fs::exists(Path("log")) && fs::file_size(Path("log")) > 100'000; });
        context.CancelExecute = 1;
    });
    context.pumpMessages = nullptr;
    const auto printed = Printed("exec yes");
    canceller.join();
    EXPECT_GT(printed.size(), 100'000u);
    EXPECT_FALSE(HasChildren());
}

/// A process in the middle of a read from a dead drive; it goes on printing from time to time.
class DeadProcess final : public platform::ChildProcess {
public:
    bool HasEnded(std::chrono::milliseconds) override { return false; }
    void Terminate() override { }
    void Pause() override { }
    std::optional<std::size_t> Read(std::span<char>) override
    {
        return ++m_reads < 10'000'000 ? std::optional<std::size_t>(1) : std::nullopt; // a test that fails has an end
    }
    void ApplyPriorityClass(std::uint32_t) override { }

private:
    int m_reads = 0;
};

TEST_F(Runner, who_does_not_end_is_left_alone_and_what_it_prints_has_an_end)
{
    DeadProcess process;
    std::ostringstream log;
    context.CancelExecute = 1;
    EXPECT_TRUE(Capture(process, log, 0, context));
    EXPECT_LT(log.str().size(), 2u << 20);
    context.CancelExecute = 0;
    EXPECT_FALSE(Capture(process, log, 0, context, { .total = 10ms }));
}

TEST_F(Runner, priorities_are_nice_values_at_the_start_and_later)
{
    const auto base = ::getpriority(PRIO_PROCESS, 0);
    EXPECT_EQ(Printed("nice"), std::to_string(base) + '\n');
    EXPECT_EQ(Printed("sleep 0.05; nice", {}, "", 3), std::to_string(std::max(base, 10)) + '\n');
    EXPECT_EQ(Printed("sleep 0.05; nice", {}, "", 4), "19\n");
    context.pumpMessages = [&, first = true]() mutable {
        if (std::exchange(first, false))
            context.PendingPriorityClass = platform::kIdlePriority;
    };
    EXPECT_EQ(Printed("sleep 0.1; nice"), "19\n");
    EXPECT_EQ(context.PendingPriorityClass, kNothingPending);
    EXPECT_EQ(CreationFlags(0), 128u);
    EXPECT_EQ(CreationFlags(1), 0xFFFF8000u);
}

TEST_F(Runner, runs_leave_nothing_behind_and_do_not_hold_each_others_stream)
{
    const auto before = OpenDescriptors();
    for (const bool wait : { true, false, true, false }) {
        Printed("echo x");
        EXPECT_FALSE(Run({ Path("missing"), {}, "" }));
        ToolCommand command{ "true", {}, "" };
        EXPECT_TRUE(ShellExecuteAndWait(command, 0, wait, false, context));
    }
    EXPECT_EQ(OpenDescriptors(), before);
    EXPECT_TRUE(Eventually([] { return !HasChildren(); }));

    ToolContext other;
    std::thread longRun([&] {
        other.pumpMessages = [&] { other.CancelExecute = context.CancelShellWait.load(); };
        EXPECT_TRUE(ExecuteAndCapture({ "sleep", { "100" }, "" }, Path("other"), 0, false, 2, "", other));
    });
    const auto start = Clock::now();
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(Printed("echo x"), "x\n");
    EXPECT_LT(Clock::now() - start, kAtOnce);
    context.CancelShellWait = 1; // here only a flag between the threads
    longRun.join();
}

TEST_F(Runner, a_shell_run_completes_a_bare_name_works_in_the_programs_folder_and_can_be_cancelled)
{
    WriteScript("my tool", "#!/bin/sh\npwd -P > seen; printf '%s' \"$1\" >> seen\n");
    ToolCommand command{ "my tool", { "a 'b'" }, "" };
    EXPECT_TRUE(ShellExecuteAndWait(command, 0, true, true, context));
    EXPECT_EQ(command.program, Path("my tool"));
    EXPECT_EQ(Content("seen"), fs::canonical(m_folder.Path()).string() + "\na 'b'");
    ToolCommand searched{ "true", {}, "" };
    EXPECT_TRUE(ShellExecuteAndWait(searched, 0, true, true, context));
    EXPECT_EQ(fs::path(searched.program).filename(), "true");
    EXPECT_TRUE(fs::path(searched.program).is_absolute());
    for (const std::string file : { "ffmpeg.exe", "c:tool.exe", "sub/tool.exe", "sub\\tool.exe" }) {
        ToolCommand missing{ file, {}, "" };
        EXPECT_FALSE(ShellExecuteAndWait(missing, 0, true, true, context));
        EXPECT_EQ(missing.program, file == "ffmpeg.exe" ? Path(file) : file);
    }

    int pumps = 0;
    context.pumpMessages = [&] { context.CancelShellWait = ++pumps == 5; };
    ToolCommand stubborn{ "/bin/sh", { "-c", "trap '' TERM; sleep 100" }, "" };
    const auto start = Clock::now();
    EXPECT_TRUE(ShellExecuteAndWait(stubborn, 0, true, true, context));
    EXPECT_EQ(pumps, 5);
    EXPECT_LT(Clock::now() - start, kAtOnce);
    EXPECT_FALSE(HasChildren());
}

TEST_F(Runner, a_tool_is_taken_from_the_program_folder_before_the_search_path)
{
    const auto folder = m_folder.Path();
    EXPECT_TRUE(fs::path(FindTool("head", folder)).is_absolute());
    WriteScript("head", "", false);
    EXPECT_NE(FindTool("head", folder), Path("head")) << "may not be executed";
    fs::remove(Path("head"));
    WriteScript("head", "");
    EXPECT_EQ(FindTool("head", folder), Path("head"));
    EXPECT_EQ(FindTool("head", folder + '/'), Path("head"));
    EXPECT_EQ(FindTool("zentaro-no-such-tool", folder), "zentaro-no-such-tool");
    EXPECT_EQ(FindTool("./head", folder), "./head");
}
