#include "app/InspectionThreads.h"
#include "inspect/ConsoleToolRunner.h"
#include "inspect/DiskFiles.h"
#include "inspect/QtServices.h"
#include "inspect/clsSource.h"
#include "platform/Files.h"
#include "platform/Leftovers.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <condition_variable>
#include <cstdlib>
#include <deque>
#include <fcntl.h>
#include <filesystem>
#include <mutex>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

// What an inspection costs beside the bare tool runs that it consists of, and what running ahead wins for many files.
namespace {

using namespace zentaro;
namespace fs = std::filesystem;

constexpr int kManyFiles = 200;

/// Notes the commands of an inspection, so that the bare runs are exactly the same ones.
class NotingRunner : public ToolRunner {
public:
    Result<void> Capture(const ToolCommand& command, const std::string& logFile) override
    {
        commands.push_back(command);
        return m_runner.Capture(command, logFile);
    }
    bool RunAndWait(const ToolCommand& command) override
    {
        commands.push_back(command);
        return m_runner.RunAndWait(command);
    }
    std::vector<ToolCommand> commands;

private:
    ToolContext m_context;
    ConsoleToolRunner m_runner{ m_context };
};

void RunBare(const ToolCommand& command)
{
    auto copy = command;
    std::vector<char*> arguments{ copy.program.data() };
    for (auto& argument : copy.arguments)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    for (const int stream : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO })
        ::posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_RDWR, 0);
    pid_t pid = 0;
    if (::posix_spawnp(&pid, arguments[0], &actions, nullptr, arguments.data(), environ) == 0)
        ::waitpid(pid, nullptr, 0);
    ::posix_spawn_file_actions_destroy(&actions);
}

/// A folder with one long 1080p film and many short clips.
class World {
public:
    World()
        : folder(platform::MakeWorkingFolder() + "/")
        , film(folder + "film.mp4")
    {
        Make("size=1920x1080:rate=25:duration=60", "-preset veryfast -g 250", film);
        Make("size=320x180:rate=25:duration=2", "-preset ultrafast", folder + "clip0.mp4");
        for (int i = 1; i < kManyFiles; ++i)
            fs::create_hard_link(folder + "clip0.mp4", Clip(i));
        context.files = &m_files;
        context.readAviStreams = &ReadAviStreams;
        context.decodePicture = &DecodePictureFile;
        context.ffmpeg = FindTool("ffmpeg", "");
        context.mpgtx = FindTool("mpgtx", "");
        context.workingFolder = folder;
        context.audioCodecNames = context.videoCodecNames = &m_names;
    }
    ~World() { platform::RemoveFolder(folder); }

    std::string Clip(int number) const { return folder + "clip" + std::to_string(number) + ".mp4"; }

    std::vector<ToolCommand> CommandsFor(const std::string& path) const
    {
        NotingRunner runner;
        auto noting = context;
        noting.tools = &runner;
        clsSource(noting).GetVideoInformation(path);
        return runner.commands;
    }

    std::string folder;
    std::string film;
    InspectionContext context;

private:
    static void Make(const std::string& picture, const std::string& coding, const std::string& path)
    {
        const auto command = "ffmpeg -v error -nostdin -y -f lavfi -i testsrc2=" + picture
            + " -f lavfi -i sine=duration=2 -c:v libx264 -pix_fmt yuv420p " + coding + " -c:a aac " + path;
        if (std::system(command.c_str()) != 0)
            std::exit(1);
    }

    DiskFiles m_files{ &LocalDateText };
    CodecNames m_names;
};

World& TheWorld()
{
    static World world;
    return world;
}

void BareToolRuns(benchmark::State& state)
{
    const auto commands = TheWorld().CommandsFor(TheWorld().film);
    for (auto _ : state) {
        for (const auto& command : commands)
            RunBare(command);
    }
    state.counters["runs"] = static_cast<double>(commands.size());
}
BENCHMARK(BareToolRuns)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);

void OneInspection(benchmark::State& state)
{
    for (auto _ : state) {
        ToolContext tools;
        ConsoleToolRunner runner(tools);
        auto context = TheWorld().context;
        context.tools = &runner;
        if (clsSource source(context); !source.GetVideoInformation(TheWorld().film))
            return state.SkipWithError("the film was refused");
    }
}
BENCHMARK(OneInspection)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);

void ManyBareToolRuns(benchmark::State& state)
{
    std::vector<ToolCommand> commands;
    for (int i = 0; i < kManyFiles; ++i) {
        for (auto& command : TheWorld().CommandsFor(TheWorld().Clip(i)))
            commands.push_back(std::move(command));
    }
    for (auto _ : state) {
        for (const auto& command : commands)
            RunBare(command);
    }
}
BENCHMARK(ManyBareToolRuns)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

/// Work from the inspection threads, done on the thread of the benchmark.
class WorkList {
public:
    void Post(std::function<void()> work)
    {
        const std::lock_guard lock(m_mutex);
        m_work.push_back(std::move(work));
        m_changed.notify_one();
    }
    void DoNext()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [&] { return !m_work.empty(); });
        const auto work = std::move(m_work.front());
        m_work.pop_front();
        lock.unlock();
        work();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_work;
};

class SilentHost : public AddQueueHost {
public:
    void ShowNotice(const Notice&, std::function<void()>) override { }
    void PlayItem(int, bool) override { }
    std::int32_t PlayMode() const override { return kPlayContinuous; }
    void EntryAdded() override { }
    void AddProgressChanged() override { }
};

void ManyFilesAdded(benchmark::State& state)
{
    for (auto _ : state) {
        WorkList work;
        const auto context = std::make_shared<const InspectionContext>(TheWorld().context);
        InspectionThreads threads([&] { return context; }, TheWorld().folder,
            [&](std::function<void()> done) { work.Post(std::move(done)); });
        Playlist playlist([] { return 0.5; });
        SilentHost host;
        InspectionState inspected;
        AddQueue queue(playlist, inspected, host, threads);
        threads.onCompleted = [&](int ticket, Inspection inspection) {
            queue.Completed(ticket, std::move(inspection));
        };
        std::vector<AddRequest> requests;
        for (int i = 0; i < kManyFiles; ++i)
            requests.push_back({ "clip", TheWorld().Clip(i) });
        queue.Add(std::move(requests));
        while (queue.Progress().total > 0)
            work.DoNext();
        if (playlist.Count() != kManyFiles)
            return state.SkipWithError("files are missing");
    }
}
BENCHMARK(ManyFilesAdded)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
