#include "app/InspectionThreads.h"
#include "inspect/DiskFiles.h"
#include "tests/platform/WorkingFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <mutex>

using namespace zentaro;

TEST(InspectionThreads, a_cancelled_inspection_gives_no_result_and_a_late_one_finds_nobody)
{
    const platform::WorkingFolder folder;
    DiskFiles files{ [](std::int64_t) { return std::string(); } };
    const CodecNames names;
    InspectionContext context;
    context.files = &files;
    context.readAviStreams = [](const std::string&) { return std::nullopt; };
    context.decodePicture = [](const std::string&) { return Picture(); };
    context.ffmpeg = "/bin/true";
    context.audioCodecNames = context.videoCodecNames = &names;
    std::mutex mutex;
    std::vector<std::function<void()>> posted;
    int results = 0;
    {
        InspectionThreads threads([&]() -> const InspectionContext& { return context; }, folder.Path() + "/",
            [&](std::function<void()> work) {
                const std::lock_guard lock(mutex);
                posted.push_back(std::move(work));
            });
        threads.onCompleted = [&](int, const Inspection&) { ++results; };
        threads.Start(7, "/clips/a.mp3");
        threads.Cancel(7);
        threads.Start(8, "/clips/b.mp3");
    }
    for (const auto& work : posted)
        work();
    EXPECT_EQ(results, 0);
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path())); // each inspection has taken its own folder away
}
