#include "app/PreviewThreads.h"
#include "tests/platform/WorkingFolder.h"
#include "tests/world/PostedWork.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace zentaro {
namespace {

namespace fs = std::filesystem;

constexpr double kHour = 3'600'000;

/// A film, and a tool whose pictures are the time that was asked for.
class PreviewThreadsTest : public testing::Test {
protected:
    PreviewThreadsTest()
    {
        std::ofstream(film) << "film";
        WriteTool("");
    }
    void WriteTool(const std::string& before)
    {
        std::ofstream(folder / "tool") << "#!/bin/sh\ncd '" << folder.Path() << "'; echo >> runs\n"
                                       << before
                                       << "\nwhile [ \"$1\" != -ss ]; do shift; done\n"
                                          "printf '\\377\\330\\377%s\\377\\331' \"$2\"\n";
        fs::permissions(folder / "tool", fs::perms::owner_all);
    }
    int Runs() const { return HowMany(folder / "runs"); }
    static int HowMany(const std::string& lines)
    {
        std::ifstream file(lines);
        return static_cast<int>(std::count(std::istreambuf_iterator<char>(file), {}, '\n'));
    }
    static double TimeOf(const std::string& bytes) { return bytes.empty() ? -1 : std::stod(bytes.substr(3)) * 1000; }
    /// ms; -1 for no picture.
    double Make(const PreviewPlace& place)
    {
        std::optional<double> time;
        threads->Make(film, place, [&](const PreviewBytes& made) { time = made ? TimeOf(*made) : -1; });
        EXPECT_TRUE(posted.RunUntil([&] { return time.has_value(); }));
        return time.value_or(0);
    }
    PreviewRunner::Made Recall(PreviewRunner::Stamp& stamp)
    {
        std::optional<PreviewRunner::Made> found;
        threads->Recall(
            film, { { 1000, false }, { 2000, false } }, [&](PreviewRunner::Made made, const PreviewRunner::Stamp& now) {
                found = std::move(made);
                stamp = now;
            });
        EXPECT_TRUE(posted.RunUntil([&] { return found.has_value(); }));
        return found.value_or(PreviewRunner::Made());
    }
    /// The folder of the tool's process, which does not end by itself for long.
    std::string StartHanging()
    {
        fs::remove(folder / "number");
        WriteTool("trap '' TERM; echo $$ > new; mv new number; sleep 100");
        threads->Make(film, { 5000, false }, [&](const PreviewBytes&) { ++late; });
        EXPECT_TRUE(posted.RunUntil([&] { return fs::exists(folder / "number"); }));
        std::string number;
        std::ifstream(folder / "number") >> number;
        return "/proc/" + number;
    }

    /// Long before its own limit ends it.
    void ExpectEndsAtOnce(const std::string& process)
    {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_TRUE(posted.RunUntil([&] { return !fs::exists(process); }));
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4));
    }

    const platform::WorkingFolder folder;
    const std::string film = folder / "film.mkv";
    bool isNear = true;
    int late = 0;
    PostedWork posted;
    std::unique_ptr<PreviewThreads> threads = std::make_unique<PreviewThreads>(
        PreviewThreads::Needs{ [this] { return folder / "tool"; }, [this](const std::string&) { return isNear; },
            std::make_shared<KnownPreviews>(
                [this] { return platform::CacheStore::Open(folder / "previews.db", 1 << 20); }),
            [](const std::string& bytes) {
                // Dark in its first 15 minutes.
                std::vector<std::uint32_t> pixels(64 * 64, 0xFF000000);
                for (std::size_t i = 0; TimeOf(bytes) > kHour / 4 && i < pixels.size(); ++i)
                    pixels[i] = i % 64 < 32 ? 0xFFFFFFFF : 0xFF000000;
                return bytes.empty() ? Picture() : Picture(64, 64, std::move(pixels));
            } },
        [this](std::function<void()> work) { posted.Add(std::move(work)); });
};

TEST_F(PreviewThreadsTest, WhatWasMadeIsKeptUntilTheFileIsAnotherAndFarFilesAreLeftAlone)
{
    PreviewRunner::Stamp first, second;
    EXPECT_EQ(Make({ 1000, false }), 1000);
    EXPECT_EQ(Make({ 1000, false }), 1000);
    EXPECT_EQ(Runs(), 1);
    EXPECT_EQ(Make({ 1000, true }), 1000);
    EXPECT_EQ(Runs(), 2) << "the exact picture of a place is another one";
    const auto known = Recall(first);
    ASSERT_EQ(known.size(), 1U);
    EXPECT_EQ(known[0].first, (PreviewPlace{ 1000, false }));
    std::ofstream(film, std::ios::app) << " that grows";
    EXPECT_TRUE(Recall(second).empty());
    EXPECT_TRUE(first && second && first != second);
    isNear = false;
    EXPECT_EQ(Make({ 2000, false }), -1);
    Recall(second);
    EXPECT_FALSE(second);
    EXPECT_EQ(Runs(), 2);
}

TEST_F(PreviewThreadsTest, AToolIsEndedWhenItsPictureIsNotWantedAndAtTheEnd)
{
    const auto cancelled = StartHanging();
    threads->Cancel();
    ExpectEndsAtOnce(cancelled);
    WriteTool("");
    EXPECT_EQ(Make({ 1000, false }), 1000) << "the next one is not held up";
    const auto last = StartHanging();
    threads->Close();
    ExpectEndsAtOnce(last);
    threads->Make(film, { 7000, false }, [&](const PreviewBytes&) { ++late; });
    threads.reset();
    posted.RunUntil([] { return true; });
    EXPECT_EQ(late, 0);
}

TEST_F(PreviewThreadsTest, AFilmIsRecognisedByTheFirstPictureThatSaysSomethingAndToolsRunOneAtATime)
{
    WriteTool("mkdir one 2>/dev/null || echo >> two; sleep 0.1; rmdir one");
    std::optional<Picture> found;
    const auto find = [&] {
        found.reset();
        threads->FindTelling(film, kHour, [&](Picture picture) { found = std::move(picture); });
    };
    find();
    EXPECT_EQ(Make({ 1000, false }), 1000);
    EXPECT_TRUE(posted.RunUntil([&] { return found.has_value(); }));
    EXPECT_EQ(HowMany(folder / "two"), 0);
    ASSERT_TRUE(found && *found);
    EXPECT_EQ(found->Pixels()[0], 0xFFFFFFFF);
    EXPECT_EQ(Runs(), 3) << "one dark place, one that is not, and the picture that was asked for";
    find();
    EXPECT_TRUE(posted.RunUntil([&] { return found.has_value(); }));
    EXPECT_TRUE(found && *found);
    EXPECT_EQ(Runs(), 3) << "it is known by now";
}

} // namespace
} // namespace zentaro
