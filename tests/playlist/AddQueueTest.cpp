#include "playlist/AddQueue.h"
#include "playlist/DroppedFiles.h"

#include <map>
#include <set>

#include <gtest/gtest.h>

namespace zentaro {
namespace {

/// A world of files whose inspections have a fixed result: "bad" ones fail, "odd" ones raise a box of their own.
Inspection ResultFor(const std::string& path)
{
    Inspection result;
    result.ok = path.find("bad") == std::string::npos;
    if (path.find("odd") != std::string::npos)
        result.notices.push_back({ "odd " + path });
    result.mediaInfo = "info of " + path;
    result.errorText = result.ok ? "" : "broken";
    return result;
}

struct Host : AddQueueHost {
    void ShowNotice(const Notice& notice) override
    {
        boxes.push_back(notice);
        if (whileBoxIsOpen)
            std::exchange(whileBoxIsOpen, nullptr)();
    }
    void PlayItem(int index, bool) override
    {
        played.push_back(index);
        if (whilePlaying)
            std::exchange(whilePlaying, nullptr)();
    }
    std::int32_t PlayMode() const override { return kPlayContinuous; }
    void EntryAdded() override { ++added; }
    void InspectionTaken(const Inspection&) override { }
    void AddProgressChanged(const AddProgress& progress) override { progressTexts.push_back(ProgressText(progress)); }

    std::vector<Notice> boxes;
    std::vector<int> played;
    std::vector<std::string> progressTexts;
    std::function<void()> whileBoxIsOpen;
    std::function<void()> whilePlaying;
    int added = 0;
};

struct Runner : InspectionRunner {
    void Start(int ticket, const std::string& path) override
    {
        started.push_back(path);
        atWork[ticket] = path;
        most = std::max(most, atWork.size());
    }
    void Cancel(int ticket) override { atWork.erase(ticket); }

    std::map<int, std::string> atWork;
    std::vector<std::string> started;
    std::size_t most = 0;
};

class AddQueueTest : public testing::Test {
protected:
    void Add(const std::vector<std::string>& names, bool playFirst = false)
    {
        std::vector<std::string> paths;
        for (const auto& name : names)
            paths.push_back("/v/" + name);
        queue.Add(AddRequests(paths, '/', playFirst));
    }
    void Finish(const std::string& name)
    {
        for (const auto& [ticket, path] : runner.atWork) {
            if (path == "/v/" + name)
                return Finish(ticket);
        }
        ADD_FAILURE() << name << " is not at work";
    }
    void Finish(int ticket)
    {
        const auto path = runner.atWork.at(ticket);
        runner.atWork.erase(ticket);
        queue.Completed(ticket, ResultFor(path));
    }
    /// The newest inspection always ends first.
    void FinishAll()
    {
        while (!runner.atWork.empty())
            Finish(runner.atWork.rbegin()->first);
    }
    static std::vector<std::string> Titles(const Playlist& list)
    {
        std::vector<std::string> titles;
        for (int i = 0; i < list.Count(); ++i)
            titles.push_back(list.EntryAt(i)->Title);
        return titles;
    }
    Playlist playlist{ [] { return 0.0; } };
    Host host;
    Runner runner;
    AddQueue queue{ playlist, host, runner, { .running = 3, .window = 6 } };
};

TEST_F(AddQueueTest, ASlowFirstFileChangesNothingInEntriesOrderAndBoxes)
{
    const std::vector<std::string> names{ "slow.avi", "b.avi", "bad1.avi", "b.avi", "bad1.avi", "odd.avi",
        "odd-bad.avi", "slow.avi", "c.avi" };
    Add(names, true);
    while (runner.atWork.size() > 1)
        Finish(runner.atWork.rbegin()->first);
    EXPECT_EQ(playlist.Count(), 0);
    EXPECT_EQ(host.progressTexts, (std::vector<std::string>{ "Adding 1 of 9" }));
    FinishAll();

    Playlist oneByOne{ [] { return 0.0; } };
    Host plain;
    std::size_t inspections = 0;
    for (const auto& name : names) {
        LoadThumb(oneByOne, plain, { name, "/v/" + name, false, name == "slow.avi" && oneByOne.Count() == 0 }, [&] {
            ++inspections;
            return ResultFor("/v/" + name);
        });
    }
    EXPECT_EQ(Titles(playlist), Titles(oneByOne));
    EXPECT_EQ(playlist.Order().Count(), oneByOne.Order().Count());
    EXPECT_EQ(host.played, plain.played);
    EXPECT_EQ(host.added, plain.added);
    EXPECT_EQ(runner.started.size(), inspections);
    EXPECT_LE(runner.most, 3u);
    ASSERT_EQ(host.boxes.size(), 4u);
    ASSERT_EQ(plain.boxes.size(), 7u);
    EXPECT_TRUE(std::equal(host.boxes.begin(), host.boxes.begin() + 3, plain.boxes.begin()));
    EXPECT_EQ(host.boxes[3], GatherNotices({ plain.boxes.begin() + 3, plain.boxes.end() }));
    EXPECT_EQ(host.progressTexts.back(), "");
}

TEST_F(AddQueueTest, AFewSlowFilesDoNotLetResultsPileUp)
{
    Add({ "slow.avi", "1.avi", "2.avi", "3.avi", "4.avi", "5.avi", "6.avi", "7.avi" });
    while (runner.atWork.size() > 1)
        Finish(runner.atWork.rbegin()->first);
    EXPECT_EQ(runner.started.size(), 6u);
    FinishAll();
    EXPECT_EQ(playlist.Count(), 8);
}

TEST_F(AddQueueTest, FilesAddedWhileABoxIsOpenJoinTheBatchAndWaitForIt)
{
    host.whileBoxIsOpen = [&] {
        Add({ "late.avi" });
        FinishAll();
        EXPECT_EQ(playlist.Count(), 0);
        EXPECT_EQ(host.progressTexts.back(), "Adding 1 of 3");
    };
    Add({ "bad.avi", "a.avi" });
    Finish("bad.avi");
    EXPECT_EQ(Titles(playlist), (std::vector<std::string>{ "a.avi", "late.avi" }));
    EXPECT_EQ(host.progressTexts.back(), "");
}

TEST_F(AddQueueTest, CancelKeepsWhatIsAddedEndsTheRestAndShowsTheGatheredBoxes)
{
    Add({ "bad1.avi", "bad2.avi", "bad3.avi", "bad4.avi", "a.avi", "b.avi", "c.avi" });
    for (const auto* name : { "bad1.avi", "bad2.avi", "bad3.avi", "bad4.avi", "a.avi" })
        Finish(name);
    EXPECT_EQ(host.boxes.size(), 3u);
    const auto late = runner.atWork.begin()->first;
    queue.Cancel();
    EXPECT_TRUE(runner.atWork.empty());
    EXPECT_EQ(host.boxes.size(), 4u);
    EXPECT_EQ(host.progressTexts.back(), "");
    queue.Completed(late, ResultFor("/v/b.avi"));
    EXPECT_EQ(Titles(playlist), (std::vector<std::string>{ "a.avi" }));
    Add({ "d.avi" });
    EXPECT_EQ(host.progressTexts.back(), "Adding 1 of 1");
    FinishAll();
    EXPECT_EQ(playlist.Count(), 2);
}

TEST_F(AddQueueTest, CancelFromABoxOrWhileTheFirstFileStartsToPlayEndsTheBatch)
{
    host.whileBoxIsOpen = [&] {
        queue.Cancel();
        EXPECT_EQ(host.progressTexts.back(), "");
    };
    Add({ "bad.avi", "a.avi" });
    FinishAll();
    EXPECT_EQ(playlist.Count(), 0);

    host.whilePlaying = [&] { queue.Cancel(); };
    Add({ "a.avi", "b.avi", "c.avi" }, true);
    Finish("a.avi");
    EXPECT_EQ(Titles(playlist), (std::vector<std::string>{ "a.avi" }));
    EXPECT_TRUE(runner.atWork.empty());
}

TEST_F(AddQueueTest, ClosingFromABoxUnwindsWithoutAnotherWord)
{
    host.whileBoxIsOpen = [&] { queue.Close(); };
    Add({ "odd-bad.avi", "odd.avi", "c.avi" }, true);
    const auto spoken = host.progressTexts.size();
    FinishAll();
    EXPECT_EQ(host.boxes.size(), 1u);
    EXPECT_TRUE(host.played.empty());
    EXPECT_EQ(host.progressTexts.size(), spoken);
    Add({ "d.avi" });
    EXPECT_TRUE(runner.atWork.empty());
}

TEST_F(AddQueueTest, ARunnerMayAnswerAtOnce)
{
    struct Immediate : InspectionRunner {
        void Start(int ticket, const std::string& path) override { queue->Completed(ticket, ResultFor(path)); }
        void Cancel(int) override { }
        AddQueue* queue = nullptr;
    } immediate;
    AddQueue direct(playlist, host, immediate);
    immediate.queue = &direct;
    std::vector<std::string> paths;
    for (int i = 0; i < 20'000; ++i)
        paths.push_back("/v/" + std::to_string(i % 15'000) + ".avi");
    direct.Add(AddRequests(paths, '/', false));
    EXPECT_EQ(playlist.Count(), 15'000);
    EXPECT_EQ(playlist.Order().At(14'999), 14'999);
    EXPECT_EQ(host.boxes.size(), 4u);
    EXPECT_EQ(host.boxes.back().title, "Media Player");
}

TEST(LoadThumbTest, ADuplicateSaysSoAndPlaysTheLastEntry)
{
    Playlist playlist{ [] { return 0.0; } };
    Host host;
    const auto add = [&](const char* name, bool playNow) {
        return LoadThumb(playlist, host, { name, name, false, playNow }, [&] { return ResultFor(name); });
    };
    EXPECT_EQ(add("a.avi", false), AddOutcome::Added);
    EXPECT_EQ(playlist.List().SelectedItem(), FancyListItems::kNone);
    add("b.avi", true);
    add("c.avi", true);
    EXPECT_EQ(add("a.avi", true), AddOutcome::Duplicate);
    EXPECT_EQ(host.played, (std::vector{ 1, 2, 2 }));
    EXPECT_EQ(playlist.Order().Position(), 2);
    EXPECT_EQ(host.boxes,
        (std::vector{ Notice{ "\"a.avi\" is already in your playlist", NoticeIcon::Information, "Media Player" } }));
    EXPECT_EQ(add("bad.avi", true), AddOutcome::Refused);
    EXPECT_EQ(host.boxes.back(), (Notice{ "Cannot open file <bad.avi>\r\nbroken" }));
    EXPECT_EQ(host.played.size(), 3u);
}

TEST(LoadThumbTest, ASelectionLostWhileTheOnlyEntryStartsPlaysItAgain)
{
    Playlist playlist{ [] { return 0.0; } };
    Host host;
    host.whilePlaying = [&] { playlist.List().Press(FancyListItems::kNone); };
    LoadThumb(playlist, host, { "a.avi", "a.avi", false, true }, [] { return ResultFor("a.avi"); });
    EXPECT_EQ(host.played, (std::vector{ 0, 0 }));
    EXPECT_EQ(playlist.List().SelectedItem(), 0);
}

TEST(LoadThumbTest, TheSecondLineNamesWhatIsKnown)
{
    EXPECT_EQ(DetailText({}), "");
    EXPECT_EQ(DetailText({ .duration = 65.5, .width = 1280, .height = 720, .fileSize = 12'345'678 }),
        "1:06 \u00B7 1280 \u00D7 720 \u00B7 12.3 MB");
    EXPECT_EQ(DetailText({ .duration = 3725, .fileSize = 999'960 }), "1:02:05 \u00B7 1.0 MB");
    EXPECT_EQ(DetailText({ .fileSize = 999 }), "999 bytes");
}

} // namespace
} // namespace zentaro
