#include "playlist/AddQueue.h"
#include "playlist/DroppedFiles.h"
#include "tests/world/FakeInspections.h"

#include <gtest/gtest.h>

#include <deque>
#include <utility>

namespace zentaro {
namespace {

struct Host : AddQueueHost {
    void ShowNotice(const Notice& notice, std::function<void()> closed) override
    {
        boxes.push_back(notice);
        open.push_back(std::move(closed));
    }
    void PlayItem(int index, bool) override { played.push_back(index); }
    std::int32_t PlayMode() const override { return kPlayContinuous; }
    void EntryAdded() override { ++added; }
    void AddProgressChanged() override { progress += ProgressText(queue->Progress()) + ";"; }

    AddQueue* queue = nullptr;
    std::vector<Notice> boxes;
    std::deque<std::function<void()>> open;
    std::vector<int> played;
    std::string progress;
    int added = 0;
};

class AddQueueTest : public testing::Test {
protected:
    AddQueueTest() { host.queue = &queue; }
    void Add(const std::vector<std::string>& names, AddTurn turn = AddTurn::AfterOthers)
    {
        std::vector<std::string> paths;
        for (const auto& name : names)
            paths.push_back("/v/" + name);
        queue.Add(AddRequests(paths, '/', turn == AddTurn::AtOnce), turn);
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
        queue.Completed(ticket, FakeInspections::ResultFor(path));
    }
    void CloseBox()
    {
        const auto closed = std::move(host.open.front());
        host.open.pop_front();
        closed();
    }
    /// The newest inspection always ends first; boxes are closed as they come.
    void FinishAll()
    {
        while (!runner.atWork.empty() || !host.open.empty())
            host.open.empty() ? Finish(runner.atWork.rbegin()->first) : CloseBox();
    }
    std::string Titles() const
    {
        std::string titles;
        for (int i = 0; i < playlist.Count(); ++i)
            titles += playlist.EntryAt(i)->Title + " ";
        return titles;
    }

    Playlist playlist{ [] { return 0.0; } };
    InspectionState inspected;
    Host host;
    FakeInspections runner;
    AddQueue queue{ playlist, inspected, host, runner, { .running = 3, .window = 6, .waitedFor = 2 } };
};

TEST_F(AddQueueTest, ASlowFirstFileChangesNothingInEntriesOrderAndBoxes)
{
    Add({ "slow.avi", "b.avi", "bad1.avi", "b.avi", "bad1.avi", "odd.avi", "odd-bad.avi", "slow.avi", "c.avi" });
    while (runner.atWork.size() > 1)
        Finish(runner.atWork.rbegin()->first);
    EXPECT_EQ(playlist.Count(), 0);
    EXPECT_EQ(host.progress, "Adding 1 of 9;");
    FinishAll();
    EXPECT_EQ(Titles(), "slow.avi b.avi odd.avi c.avi ");
    EXPECT_EQ(playlist.Order().Count(), 4);
    EXPECT_EQ(host.added, 4);
    EXPECT_TRUE(host.played.empty());
    EXPECT_EQ(runner.started.size(), 7u); // duplicates are not looked into
    EXPECT_LE(runner.most, 3u);
    const Notice bad1{ "Cannot open file </v/bad1.avi>\r\nNo good." };
    const auto duplicate = [](const std::string& name) {
        return Notice{ "\"" + name + "\" is already in your playlist", NoticeIcon::Information, "Media Player" };
    };
    EXPECT_EQ(host.boxes,
        (std::vector{ bad1, duplicate("b.avi"), bad1,
            GatherNotices({ { "odd /v/odd.avi" }, { "odd /v/odd-bad.avi" },
                { "Cannot open file </v/odd-bad.avi>\r\nNo good." }, duplicate("slow.avi") }) }));
    EXPECT_TRUE(host.progress.ends_with("Adding 9 of 9;;"));
    EXPECT_EQ(inspected.StreamInfoText, "info of /v/c.avi");
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

TEST_F(AddQueueTest, WhatSomebodyWaitsForPassesBatchesBoxesAndToolsThatNeverEnd)
{
    Add({ "pipe.avi", "bad.avi", "b.avi", "c.avi", "d.avi" });
    Add({ "hangs.avi" }, AddTurn::AtOnce);
    Add({ "now.avi", "then.avi" }, AddTurn::AtOnce);
    Finish("now.avi");
    EXPECT_EQ(Titles(), "now.avi ");
    EXPECT_EQ(host.played, std::vector{ 0 });
    Finish("then.avi"); // in the place of the one before; the batch keeps its three
    EXPECT_EQ(runner.atWork.size(), 4u);
    Add({ "bad-now.avi" }, AddTurn::AtOnce);
    Finish("bad-now.avi");
    EXPECT_EQ(host.open.size(), 1u);
    Finish("pipe.avi");
    Finish("bad.avi");
    Finish("b.avi");
    EXPECT_EQ(Titles(), "now.avi then.avi pipe.avi ");
    EXPECT_EQ(host.open.size(), 2u);
    CloseBox();
    EXPECT_EQ(playlist.Count(), 3); // it was the other file's box
    CloseBox();
    EXPECT_EQ(Titles(), "now.avi then.avi pipe.avi b.avi ");
    // Three at once: the third one waits for a place.
    Add({ "e.avi" }, AddTurn::AtOnce);
    Add({ "f.avi" }, AddTurn::AtOnce);
    EXPECT_EQ(std::count(runner.started.begin(), runner.started.end(), "/v/f.avi"), 1);
    FinishAll();
    EXPECT_TRUE(Titles().ends_with("c.avi d.avi ") || playlist.Count() == 9);
}

TEST_F(AddQueueTest, TheOutcomeIsToldOnceAndNeverLaterThanABox)
{
    std::string told;
    const auto add = [&](const char* name) {
        queue.Add({ { name, name, false, true, false,
                      [&told, name](
                          AddOutcome outcome) { told += name + std::to_string(static_cast<int>(outcome)) + " "; } } },
            AddTurn::AtOnce);
    };
    add("a");
    Finish(runner.atWork.begin()->first);
    EXPECT_EQ(told, "a0 ");
    add("a");
    add("bad");
    Finish(runner.atWork.begin()->first);
    EXPECT_EQ(told, "a0 a1 bad2 ");
    EXPECT_EQ(host.played, std::vector{ 0 });
    CloseBox();
    CloseBox();
    EXPECT_EQ(host.played, (std::vector{ 0, 0 })); // the list's last entry
    add("odd");
    Finish(runner.atWork.begin()->first);
    EXPECT_EQ(told, "a0 a1 bad2 odd0 ");
    EXPECT_EQ(playlist.Count(), 1);
    add("odd"); // another way is quicker while the box is open
    Finish(runner.atWork.begin()->first);
    FinishAll();
    EXPECT_EQ(playlist.Count(), 2);
    add("late");
    queue.Cancel();
    EXPECT_TRUE(told.ends_with("late3 "));
}

TEST_F(AddQueueTest, CancelKeepsWhatIsAddedEndsTheRestAndShowsTheGatheredBoxes)
{
    Add({ "bad1.avi", "bad2.avi", "bad3.avi", "bad4.avi", "a.avi", "b.avi", "c.avi" });
    for (const auto* name : { "bad1.avi", "bad2.avi", "bad3.avi", "bad4.avi", "a.avi" }) {
        Finish(name);
        while (!host.open.empty())
            CloseBox();
    }
    EXPECT_EQ(host.boxes.size(), 3u);
    const auto late = runner.atWork.begin()->first;
    queue.Cancel();
    EXPECT_TRUE(runner.atWork.empty());
    EXPECT_EQ(host.boxes.size(), 4u);
    EXPECT_EQ(queue.Progress(), AddProgress());
    queue.Completed(late, FakeInspections::ResultFor("/v/b.avi"));
    EXPECT_EQ(Titles(), "a.avi ");
    Add({ "d.avi" });
    EXPECT_TRUE(host.progress.ends_with(";Adding 1 of 1;"));
    Add({ "bad5.avi", "e.avi" });
    FinishAll();
    EXPECT_EQ(Titles(), "a.avi d.avi e.avi ");
}

TEST_F(AddQueueTest, ClosingUnwindsWithoutAnotherWord)
{
    Add({ "odd.avi", "odd-bad.avi", "c.avi" }, AddTurn::AtOnce);
    Finish("odd.avi");
    const auto spoken = host.progress;
    queue.Close();
    CloseBox();
    EXPECT_TRUE(host.open.empty() && host.played.empty() && runner.atWork.empty());
    EXPECT_EQ(host.progress, spoken);
    Add({ "d.avi" });
    EXPECT_TRUE(runner.atWork.empty());
}

TEST_F(AddQueueTest, ManyFilesAndDuplicatesNeedNoDeepStack)
{
    std::vector<std::string> names;
    for (int i = 0; i < 20'000; ++i)
        names.push_back(std::to_string(i % 15'000) + ".avi");
    Add(names);
    FinishAll();
    EXPECT_EQ(playlist.Count(), 15'000);
    EXPECT_EQ(playlist.Order().At(14'999), 14'999);
    EXPECT_EQ(host.boxes.size(), 4u);
    EXPECT_EQ(host.boxes.back().title, "Media Player");
}

TEST(DetailTextTest, TheSecondLineNamesWhatIsKnown)
{
    EXPECT_EQ(DetailText({}), "");
    EXPECT_EQ(DetailText({ .duration = 65.5, .width = 1280, .height = 720, .fileSize = 12'345'678 }),
        "1:06 \u00B7 1280 \u00D7 720 \u00B7 12.3 MB");
    EXPECT_EQ(DetailText({ .duration = 3725, .fileSize = 999'960 }), "1:02:05 \u00B7 1.0 MB");
    EXPECT_EQ(DetailText({ .fileSize = 999 }), "999 bytes");
}

TEST_F(AddQueueTest, AFileToPlayPlaysOnItsReportAndGetsPictureAndBoxLater)
{
    Add({ "a", "b", "odd", "d" }, AddTurn::AtOnce);
    const int first = runner.atWork.begin()->first;
    queue.Reported(first, FakeInspections::ResultFor("/v/a"));
    EXPECT_EQ(host.played, std::vector{ 0 });
    EXPECT_EQ(Titles(), "a ");
    Finish("b");
    EXPECT_EQ(Titles(), "a b ");
    Finish("d");
    Finish("odd");
    EXPECT_EQ(Titles(), "a b ");
    EXPECT_TRUE(host.boxes.empty()) << "a box goes before that of an earlier file";

    auto whole = FakeInspections::ResultFor("/v/odd a");
    whole.thumbnail = Picture(1, 1, { 7 });
    queue.Completed(first, whole);
    EXPECT_EQ(playlist.EntryAt(0)->Thumbnail, whole.thumbnail);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text, "odd /v/odd a");
    CloseBox();
    CloseBox();
    EXPECT_EQ(Titles(), "a b odd d ");
    EXPECT_EQ(host.played, std::vector{ 0 });
    EXPECT_EQ(queue.Progress().total, 0);
}

TEST_F(AddQueueTest, PicturesThatAreMadeSlowlyHoldUpNobodyWhoWaits)
{
    for (int i = 0; i < 10; ++i) {
        Add({ std::to_string(i) }, AddTurn::AtOnce);
        ASSERT_FALSE(runner.atWork.empty());
        queue.Reported(runner.atWork.rbegin()->first, FakeInspections::ResultFor("/v/" + std::to_string(i)));
        EXPECT_EQ(playlist.Count(), i + 1);
    }
    FinishAll();
    EXPECT_EQ(queue.Progress().total, 0);
}

TEST_F(AddQueueTest, NothingIsPlayedOnAReportThatLeavesAQuestion)
{
    Add({ "bad", "b" }, AddTurn::AtOnce);
    Add({ "odd" }, AddTurn::AtOnce);
    Add({ "c" });
    const auto running = runner.atWork;
    for (const auto& [ticket, path] : running)
        queue.Reported(ticket, FakeInspections::ResultFor(path));
    EXPECT_TRUE(host.played.empty());
    EXPECT_EQ(playlist.Count(), 0);
    FinishAll();
    EXPECT_EQ(playlist.Count(), 3);
}

TEST_F(AddQueueTest, KnownFilesNeedNoInspection)
{
    runner.answersRecalls = true;
    Add({ "a", "b", "c" });
    EXPECT_TRUE(runner.atWork.empty());
    ASSERT_EQ(runner.asked.size(), 3U);
    queue.Recalled({ { runner.asked[0].ticket, FakeInspections::ResultFor("/v/a") }, { runner.asked[1].ticket, {} },
        { runner.asked[2].ticket, FakeInspections::ResultFor("/v/c") } });
    EXPECT_EQ(Titles(), "a ");
    EXPECT_EQ(runner.started, std::vector<std::string>{ "/v/b" });
    FinishAll();
    EXPECT_EQ(Titles(), "a b c ");

    // Who waits for a file does not wait for an answer about it.
    Add({ "d" }, AddTurn::AtOnce);
    EXPECT_EQ(runner.atWork.size(), 1U);
}

} // namespace
} // namespace zentaro
