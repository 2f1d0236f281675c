#include "inspect/ModPipes.h"
#include "platform/System_windows.h"
#include "tests/platform/WorkingFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <io.h>
#include <thread>
#include <utility>

using namespace zentaro;
namespace fs = std::filesystem;

namespace {

std::string g_self; // this program, which is its own tool

/// What this program does as a tool.
int Act(const std::string& role, const std::vector<std::string>& arguments)
{
    ::_setmode(::_fileno(stdout), _O_BINARY);
    if (role == "print") {
        for (const auto& argument : arguments)
            std::printf("[%s]", argument.c_str());
        std::fflush(stdout);
        std::fprintf(stderr, "end\n");
    } else if (role == "priority") {
        ::Sleep(std::stoul(arguments.at(0)));
        std::printf("%lu", ::GetPriorityClass(::GetCurrentProcess()));
    } else if (role == "folder") {
        std::printf("%s", fs::current_path().string().c_str());
    } else if (role == "fill") {
        std::printf("%s", std::string(20'000, 'x').c_str());
    } else if (role == "forever") {
        std::printf("ready");
        std::fflush(stdout);
        ::Sleep(INFINITE);
    } else if (role == "write") {
        std::ofstream(arguments.at(0)) << fs::current_path().string() << '|' << arguments.at(1);
    }
    return 0;
}

BOOL WINAPI Accept(HANDLE, LPDWORD, LPDWORD, LPDWORD)
{
    ::SetLastError(7);
    return TRUE;
}

class WindowsRunner : public testing::Test {
protected:
    Result<void> Run(const ToolCommand& command, std::int32_t priority = 2, const std::string& workDir = "")
    {
        return ExecuteAndCapture(command, folder / "log", 0, false, priority, workDir, context);
    }
    static ToolCommand Child(std::vector<std::string> words)
    {
        words.insert(words.begin(), "--child");
        return { g_self, std::move(words), "text" };
    }
    /// Behind the first line.
    std::string Printed(const std::vector<std::string>& words, const std::string& workDir = "")
    {
        const auto result = Run(Child(words), 2, workDir);
        EXPECT_TRUE(result) << result.error().text;
        const auto log = Content("log");
        EXPECT_EQ(log.substr(0, 6), "text\r\n");
        return log.substr(std::min<std::size_t>(6, log.size()));
    }
    std::string Content(const std::string& name) const
    {
        return platform::ReadTextFile(folder / name, 100'000).value_or("missing");
    }

    const platform::WorkingFolder folder;
    ToolContext context;
};

} // namespace

TEST_F(WindowsRunner, a_step_that_fails_has_its_number_and_leaves_no_log)
{
    const auto original = std::exchange(platform::SetPipeState, &Accept);
    EXPECT_EQ(Run(Child({ "print" })).error(), (Error{ 2002, "Could not set pipe state LastError 7" }));
    platform::SetPipeState = original;
    const auto result = Run({ "C:\\no\\such.exe", {}, "t" });
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().number, 2003);
    EXPECT_TRUE(result.error().text.starts_with("Could not create piped process. LastError ")) << result.error().text;
    EXPECT_EQ(Content("log"), "missing");
}

TEST_F(WindowsRunner, arguments_arrive_unchanged_and_both_streams_are_captured)
{
    const std::vector<std::string> arguments{ "a b", "", "say \"hi\"", "C:\\My Files\\", "\\\\\"x", "tab\there", "*" };
    auto run = std::vector<std::string>{ "print" };
    std::string expected;
    for (const auto& argument : arguments) {
        run.push_back(argument);
        expected += '[' + argument + ']';
    }
    EXPECT_EQ(Printed(run), expected + "end\r\n");
    EXPECT_EQ(Printed({ "silent" }), "");
    EXPECT_EQ(Printed({ "fill" }), std::string(20'000, 'x')) << "more than the pipe holds";
}

TEST_F(WindowsRunner, a_running_tool_works_in_its_folder_takes_another_priority_and_can_be_cancelled)
{
    EXPECT_EQ(Printed({ "folder" }, folder.Path()), folder.Path());
    EXPECT_EQ(Printed({ "folder" }), fs::current_path().string());
    EXPECT_EQ(Printed({ "priority", "0" }), std::to_string(NORMAL_PRIORITY_CLASS));
    context.pumpMessages = [&] { context.PendingPriorityClass = platform::kBelowNormalPriority; };
    EXPECT_EQ(Printed({ "priority", "300" }), std::to_string(BELOW_NORMAL_PRIORITY_CLASS));
    int pumps = 0;
    context.pumpMessages = [&] { context.CancelExecute = ++pumps > 8; };
    EXPECT_EQ(Printed({ "forever" }), "ready");
}

TEST_F(WindowsRunner, a_shell_run_completes_a_bare_name_waits_and_can_be_cancelled)
{
    context.programFolder = fs::path(g_self).parent_path().string();
    const auto seen = folder / "seen";
    ToolCommand command{ fs::path(g_self).filename().string(), { "--child", "write", seen, "a \"b\"\\" }, "" };
    EXPECT_TRUE(ShellExecuteAndWait(command, 0, true, true, context));
    EXPECT_EQ(fs::path(command.program), fs::path(g_self));
    EXPECT_EQ(Content("seen"), context.programFolder + "|a \"b\"\\");

    int pumps = 0;
    context.pumpMessages = [&] { context.CancelShellWait = ++pumps == 5; };
    auto forever = Child({ "forever" });
    EXPECT_TRUE(ShellExecuteAndWait(forever, 0, true, true, context));
    EXPECT_EQ(pumps, 5);

    // The system tells about a missing program in a box, and waits until somebody closes it.
    const std::jthread user([](const std::stop_token& stop) {
        for (; !stop.stop_requested(); ::Sleep(20))
            if (auto* const box = ::FindWindowA("#32770", nullptr))
                ::PostMessageA(box, WM_COMMAND, IDOK, 0);
    });
    ToolCommand missing{ "zentaro-no-such-tool", {}, "" };
    EXPECT_FALSE(ShellExecuteAndWait(missing, 0, true, true, context));
    EXPECT_EQ(missing.program, context.programFolder + "\\zentaro-no-such-tool");

    EXPECT_TRUE(fs::path(FindTool("cmd", folder.Path())).is_absolute());
    std::ofstream(folder / "cmd.exe") << "x";
    EXPECT_EQ(FindTool("cmd", folder.Path()), folder / "cmd.exe");
    EXPECT_EQ(FindTool("c:cmd.exe", folder.Path()), "c:cmd.exe");
}

int main(int argc, char** argv)
{
    if (argc > 2 && std::string(argv[1]) == "--child")
        return Act(argv[2], { argv + 3, argv + argc });
    char self[MAX_PATH];
    ::GetModuleFileNameA(nullptr, self, MAX_PATH);
    g_self = self;
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
