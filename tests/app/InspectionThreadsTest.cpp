#include "app/InspectionThreads.h"
#include "inspect/DiskFiles.h"
#include "platform/Folders.h"

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <filesystem>
#include <fstream>
#include <mutex>

using namespace zentaro;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace {

/// Inspections by a tool that is a shell script; their results are done on the test's thread.
class InspectionThreadsTest : public testing::Test {
protected:
    InspectionThreadsTest()
        : folder(platform::MakeWorkingFolder() + "/")
    {
        context.files = &files;
        context.readAviStreams = [](const std::string&) { return std::nullopt; };
        context.decodePicture = [](const std::string&) { return Picture(); };
        context.ffmpeg = folder + "tool";
        context.audioCodecNames = context.videoCodecNames = &names;
    }
    ~InspectionThreadsTest() override { platform::RemoveFolder(folder); }

    void WriteTool(const std::string& commands) const
    {
        std::ofstream(context.ffmpeg) << "#!/bin/sh\n" << commands;
        fs::permissions(context.ffmpeg, fs::perms::owner_all);
    }

    InspectionThreads& Threads()
    {
        threads = std::make_unique<InspectionThreads>([this]() -> const InspectionContext& { return context; }, folder,
            [this](std::function<void()> work) {
                const std::lock_guard lock(mutex);
                posted.push_back(std::move(work));
                changed.notify_one();
            });
        threads->onCompleted = [this](int ticket, Inspection inspection) { results[ticket] = std::move(inspection); };
        return *threads;
    }

    void WaitForResults(std::size_t count)
    {
        std::unique_lock lock(mutex);
        while (results.size() < count && changed.wait_for(lock, 20s, [&] { return !posted.empty(); })) {
            const auto work = std::move(posted.front());
            posted.pop_front();
            work();
        }
    }

    bool HasFolders() const
    {
        for (const auto& entry : fs::directory_iterator(folder)) {
            if (entry.is_directory())
                return true;
        }
        return false;
    }

    std::string folder;
    DiskFiles files{ [](std::int64_t) { return std::string(); } };
    CodecNames names;
    InspectionContext context;
    std::unique_ptr<InspectionThreads> threads;
    std::map<int, Inspection> results;
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::function<void()>> posted;
};

constexpr const char* kReport = "echo 'Input #0, mp3, from x:'\n"
                                "echo '  Duration: 00:00:12.50, start: 0.000000, bitrate: 128 kb/s'\n"
                                "echo '    Stream #0.0: Audio: mp3, 44100 Hz, stereo, 128 kb/s'\n";

} // namespace

TEST_F(InspectionThreadsTest, several_files_are_inspected_at_once_and_nothing_stays_behind)
{
    WriteTool(kReport);
    auto& running = Threads();
    for (int ticket = 0; ticket < 4; ++ticket)
        running.Start(ticket, "/clips/" + std::to_string(ticket) + ".mp3");
    WaitForResults(4);
    ASSERT_EQ(results.size(), 4u);
    for (const auto& [ticket, result] : results) {
        EXPECT_TRUE(result.ok) << result.errorText;
        EXPECT_DOUBLE_EQ(result.facts.duration, 12.5);
        EXPECT_NE(result.mediaInfo.find("Stream information of /clips/" + std::to_string(ticket)), std::string::npos);
    }
    threads.reset();
    EXPECT_FALSE(HasFolders());
}

TEST_F(InspectionThreadsTest, closing_ends_running_tools_at_once_and_no_further_one_starts)
{
    WriteTool("echo $$ >> \"" + folder + "started\"\ntrap '' TERM\nsleep 30\n");
    auto& running = Threads();
    running.Start(1, "/clips/a.mp3");
    running.Start(2, "/clips/b.mp3");
    for (int tries = 0; tries < 2000 && !fs::exists(folder + "started"); ++tries)
        std::this_thread::sleep_for(10ms);
    const auto start = std::chrono::steady_clock::now();
    running.CancelAll();
    // Far from the thirty seconds that the tool would take.
    EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);
    EXPECT_TRUE(posted.empty());
    EXPECT_FALSE(HasFolders());
}

TEST_F(InspectionThreadsTest, a_cancelled_inspection_gives_no_result_and_a_late_one_finds_nobody)
{
    WriteTool(kReport);
    Threads().Start(7, "/clips/a.mp3");
    threads->Cancel(7);
    threads->Start(8, "/clips/b.mp3");
    threads.reset();
    for (const auto& work : posted)
        work();
    EXPECT_TRUE(results.empty());
}
