#include "app/InspectionThreads.h"
#include "inspect/DiskFiles.h"
#include "tests/platform/WorkingFolder.h"
#include "tests/world/PostedWork.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <future>
#include <thread>

using namespace zentaro;
using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;

class Threads : public testing::Test {
protected:
    Threads()
    {
        std::filesystem::create_directory(folder / "work");
        context->files = &m_files;
        context->readAviStreams = [](const std::string&) { return std::nullopt; };
        context->decodePicture = [](const std::string&) { return Picture(); };
        context->ffmpeg = "/bin/true";
        context->audioCodecNames = context->videoCodecNames = &m_names;
        threads = std::make_unique<InspectionThreads>([this] { return context; }, folder / "work/",
            [this](std::function<void()> work) { m_posted.Add(std::move(work)); }, known);
        threads->onCompleted = [this](int ticket, const Inspection& result) {
            completed.push_back(std::to_string(ticket) + " " + result.errorText);
        };
    }
    void WriteTool(const std::string& shellText)
    {
        context->ffmpeg = folder / "tool";
        std::ofstream(context->ffmpeg) << "#!/bin/sh\n" << shellText << '\n';
        std::filesystem::permissions(context->ffmpeg, std::filesystem::perms::owner_all);
    }
    bool RunUntil(const std::function<bool()>& done) { return m_posted.RunUntil(done); }
    void ExpectQuickEnd()
    {
        const auto start = Clock::now();
        threads.reset();
        EXPECT_LT(Clock::now() - start, 2s); // far above what ending takes, far below what a tool here would
        EXPECT_TRUE(IsWorkEmpty());
    }
    bool IsWorkEmpty() { return std::filesystem::is_empty(folder / "work"); }

    const platform::WorkingFolder folder;
    std::shared_ptr<InspectionContext> context = std::make_shared<InspectionContext>();
    std::vector<std::string> completed;
    std::unique_ptr<InspectionThreads> threads;
    std::shared_ptr<KnownFiles> known =
        std::make_shared<KnownFiles>([this] { return platform::CacheStore::Open(folder / "seen.db", 1 << 20); });

private:
    DiskFiles m_files{ [](std::int64_t) { return std::string(); } };
    CodecNames m_names;
    PostedWork m_posted;
};

} // namespace

TEST_F(Threads, a_cancelled_inspection_gives_no_result_and_a_late_one_finds_nobody)
{
    threads->Start(7, "/clips/a.mp3");
    threads->Cancel(7);
    threads->Start(8, "/clips/b.mp3");
    // Each inspection takes its own folder away.
    EXPECT_TRUE(RunUntil([&] { return !completed.empty() && IsWorkEmpty(); }));
    EXPECT_TRUE(completed.front().starts_with("8 ")) << completed.front();
    threads->Start(9, "/clips/c.mp3");
    std::this_thread::sleep_for(50ms); // time to post what nobody will take
    threads.reset();
    EXPECT_TRUE(IsWorkEmpty());
    RunUntil([] { return true; });
    EXPECT_EQ(completed.size(), 1U);
}

TEST_F(Threads, a_tool_that_hangs_refuses_its_file_and_does_not_hold_up_the_end)
{
    WriteTool("trap '' TERM; echo $$ > \"$2\"; sleep 100");
    context->reportLimit.silence = 300ms;
    threads->Start(1, folder / "hangs");
    EXPECT_TRUE(RunUntil([&] { return !completed.empty(); }));
    EXPECT_EQ(completed, std::vector<std::string>{ std::string("1 ") + kHangsText });

    context->reportLimit = {};
    threads->Start(2, folder / "goes-on");
    pid_t tool = 0;
    EXPECT_TRUE(RunUntil([&] { return bool(std::ifstream(folder / "goes-on") >> tool); }));
    ExpectQuickEnd();
    EXPECT_TRUE(RunUntil([&] { return ::kill(tool, 0) != 0; }));
}

TEST_F(Threads, a_read_that_never_ends_holds_up_neither_the_queue_nor_the_end)
{
    // What such a read still uses when it comes back outlives everything else.
    std::promise<void> drive;
    context->readAviStreams = [answer = drive.get_future().share()](const std::string&) {
        answer.wait();
        return std::nullopt;
    };
    WriteTool("echo 'Input #0, mp3:'");
    context->reportLimit.total = 500ms;
    threads->Start(1, "/clips/a.mp3");
    EXPECT_TRUE(RunUntil([&] { return !completed.empty(); }));
    EXPECT_EQ(completed, std::vector<std::string>{ std::string("1 ") + kHangsText });
    context->reportLimit.total = 1h;
    threads->Start(2, "/clips/b.mp3");
    EXPECT_TRUE(RunUntil([&] { return std::filesystem::exists(folder / "work/inspect2"); }));
    ExpectQuickEnd();
    drive.set_value();
    EXPECT_TRUE(RunUntil([&] { return context.use_count() == 1; }));
    EXPECT_EQ(completed.size(), 1U);
}

TEST_F(Threads, an_expected_file_is_inspected_before_it_is_asked_for)
{
    WriteTool("echo \"$2\" >> " + folder / "runs");
    threads->Expect("/clips/a.mp3");
    EXPECT_TRUE(RunUntil([&] { return std::filesystem::exists(folder / "runs"); }));
    threads->StartAtOnce(3, "/clips/a.mp3");
    threads->StartAtOnce(4, "/clips/b.mp3");
    EXPECT_TRUE(RunUntil([&] { return completed.size() == 2; }));
    std::string runs;
    std::ifstream lines(folder / "runs");
    for (std::string line; std::getline(lines, line);)
        runs += line + ";";
    EXPECT_EQ(runs, "/clips/a.mp3;/clips/b.mp3;");
}

TEST_F(Threads, a_known_file_runs_no_tool)
{
    WriteTool("echo \"Input #0, matroska:\"; echo '  Duration: 00:00:10.00, start: 0.000000';"
              "echo '  Stream #0:0: Audio: mp3, 44100 Hz, stereo, s16p, 128 kb/s'; echo run >> "
        + folder / "runs");
    std::ofstream(folder / "song.mka") << "song";
    context->defaultAudioPicture = Picture(1, 1, { 1 });
    std::vector<Inspection> results;
    threads->onCompleted = [&](int, const Inspection& result) { results.push_back(result); };
    for (const auto count : { 1U, 2U }) {
        threads->Start(static_cast<int>(count), folder / "song.mka");
        EXPECT_TRUE(RunUntil([&] { return results.size() == count; }));
    }
    EXPECT_TRUE(results[0].ok && results[1].ok);
    EXPECT_EQ(results[0].mediaInfo, results[1].mediaInfo);
    EXPECT_EQ(results[1].thumbnail, context->defaultAudioPicture);
    EXPECT_EQ(std::filesystem::file_size(folder / "runs"), std::string("run\n").size());

    std::vector<RecalledFile> recalled;
    threads->onRecalled = [&](std::vector<RecalledFile> files) { recalled = std::move(files); };
    EXPECT_TRUE(threads->Recall({ { 7, folder / "song.mka" }, { 8, folder / "other.mka" } }));
    EXPECT_TRUE(RunUntil([&] { return recalled.size() == 2; }));
    EXPECT_TRUE(recalled[0].inspection && !recalled[1].inspection);
}
