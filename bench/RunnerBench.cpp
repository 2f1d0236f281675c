#include "inspect/ModPipes.h"

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

// The same command bare and through the runner, side by side: the difference is what the capture costs.
namespace {

using namespace zentaro;

const ToolCommand kCommands[] = {
    { "/bin/true", {}, "true" },
    { "ffmpeg", { "-nostdin", "-version" }, "ffmpeg -version" },
    { "head", { "-c", "100000000", "/dev/zero" }, "100 MB" },
};

const ToolCommand& CommandOf(benchmark::State& state)
{
    const auto& command = kCommands[state.range(0)];
    state.SetLabel(command.text);
    return command;
}

void Bare(benchmark::State& state)
{
    auto command = CommandOf(state);
    std::vector<char*> arguments{ command.program.data() };
    for (auto& argument : command.arguments)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    const auto log = (std::filesystem::temp_directory_path() / "zentaro-bench-bare.txt").string();
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    for (const int stream : { STDOUT_FILENO, STDERR_FILENO })
        ::posix_spawn_file_actions_addopen(&actions, stream, log.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    for (auto _ : state) {
        pid_t pid = 0;
        if (::posix_spawnp(&pid, arguments[0], &actions, nullptr, arguments.data(), environ) != 0)
            return state.SkipWithError("cannot be started");
        ::waitpid(pid, nullptr, 0);
        std::filesystem::remove(log);
    }
    ::posix_spawn_file_actions_destroy(&actions);
}
BENCHMARK(Bare)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->UseRealTime();

void Captured(benchmark::State& state)
{
    const auto& command = CommandOf(state);
    const auto log = (std::filesystem::temp_directory_path() / "zentaro-bench-captured.txt").string();
    ToolContext context;
    for (auto _ : state) {
        if (!ExecuteAndCapture(command, log, 0, false, 2, "", context))
            return state.SkipWithError("cannot be started");
        std::filesystem::remove(log); // a file that is cut instead costs a write to the disk
    }
}
BENCHMARK(Captured)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
