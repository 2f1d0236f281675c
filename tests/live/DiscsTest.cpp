#include "tests/live/Discs.h"
#include "app/DriveQueries.h"
#include "platform/Drives_linux.h"
#include "tests/live/LivePlayer.h"
#include "tests/platform/DiskService.h"
#include "tests/platform/PrivateBus.h"

#include <QCoreApplication>

#include <filesystem>

namespace zentaro::live {
namespace {

const trial::VideoDisc& Movie()
{
    static const platform::WorkingFolder folder;
    static const trial::VideoDisc disc(folder.Path());
    return disc;
}

class Discs : public LivePlayer {
protected:
    Discs()
    {
        player.Sequence().PBCont();
        player.Sequence().DoAfter(1);
    }
    /// The only drive, with a disc in it, is chosen from the menu.
    void PlayDisc(const std::string& drive)
    {
        player.Discs().DrivesFound({ { drive, "MOVIE", true, {} } });
        player.Discs().dvdsList_Click(0);
    }
    bool RunUntilIn(int title)
    {
        return RunUntil([&] { return player.Discs().Titles().present == title && watch.time > 0; });
    }
    bool RunUntilIdle()
    {
        return RunUntil([&] { return !player.State().mediaControlsEnabled; });
    }
};

TEST_F(Discs, AFolderPlaysAndItsMenuWaitsForTheUser)
{
    PlayDisc(Movie().folder);
    ASSERT_TRUE(RunUntilIn(0));
    // The menu's clock stands still short of its end, where a file's would count as ended.
    ASSERT_TRUE(RunUntil([&] { return watch.length > 0 && watch.time > 0.75 * watch.length; }));
    RunFor(3s);
    EXPECT_TRUE(player.State().mediaControlsEnabled);
    EXPECT_EQ(player.Discs().Titles().present, 0);
    EXPECT_TRUE(player.Discs().Navigate(DiscKey::Right));
    EXPECT_TRUE(player.Discs().Navigate(DiscKey::Activate));
    ASSERT_TRUE(RunUntilIn(2));
    EXPECT_FALSE(player.Discs().Navigate(DiscKey::Right));
    player.Discs().SetTitle(1);
    ASSERT_TRUE(RunUntilIn(1));
    EXPECT_EQ(player.Discs().Chapters().captions.size(), 3U);
    player.Discs().SetTitle(2);
    ASSERT_TRUE(RunUntilIn(2));
    ASSERT_TRUE(RunUntilIdle());
    RunFor(1100ms);
    EXPECT_FALSE(player.State().mediaControlsEnabled);
    EXPECT_EQ(watch.played, std::vector<std::string>{ "dvd://" + Movie().folder });
    EXPECT_EQ(world.power.restarts, 0);
    EXPECT_EQ(world.dialogs.boxes.size(), 0U);
}

TEST_F(Discs, AnImageInsertedIntoADrivePlaysByItselfAndEndsWhenItIsPulledOut)
{
    const auto image = folder + "drive.iso";
    std::filesystem::copy_file(Movie().image, image);
    const platform::PrivateBus bus;
    platform::DiskService service(bus);
    DriveQueries drives(std::make_shared<platform::DiskServiceDrives>(bus.Address(), 30s),
        [](auto work) { QMetaObject::invokeMethod(qApp, std::move(work), Qt::QueuedConnection); });
    bool isFound = false;
    drives.onFound = [&](auto found) {
        player.Discs().DrivesFound(std::move(found));
        isFound = true;
    };
    world.askForDrives = [&] { drives.Ask(); };
    const auto letWatch = [&] {
        isFound = false;
        player.OnPositionTick();
        player.Discs().OnDVDTick();
        return RunUntil([&] { return isFound; });
    };
    service.AddDrive(image);
    ASSERT_TRUE(letWatch());
    EXPECT_TRUE(watch.played.empty());

    service.SetDisc(image, "MOVIE");
    ASSERT_TRUE(letWatch());
    EXPECT_EQ(player.BothMenus().frmMenu.Find("dvdsList")->caption, "MOVIE (" + image + ")");
    ASSERT_TRUE(RunUntilIn(0));
    EXPECT_TRUE(player.Discs().Navigate(DiscKey::Activate));
    ASSERT_TRUE(RunUntilIn(1));
    std::filesystem::resize_file(image, 0);
    service.SetDisc(image, {});
    // The title would go back to the menu.
    EXPECT_TRUE(RunUntilIdle());
    ASSERT_TRUE(letWatch());
    EXPECT_EQ(watch.played.size(), 1U);
    EXPECT_EQ(world.power.restarts, 0);
}

TEST_F(Discs, WhatIsNoVideoDiscIsSaidOnceAndLeavesTheIdlePicture)
{
    PlayDisc(folder);
    ASSERT_TRUE(RunUntilIdle());
    RunFor(1100ms);
    EXPECT_EQ(world.dialogs.boxes.size(), 1U);
    EXPECT_EQ(frame.findChild<QWidget*>("VLCPlayer"), nullptr);
}

TEST_F(Discs, AnAnswerThatNeverComesHoldsUpNothing)
{
    const platform::PrivateBus bus;
    platform::DiskService service(bus);
    service.answersAtOnce = false;
    int answers = 0;
    {
        DriveQueries drives(std::make_shared<platform::DiskServiceDrives>(bus.Address(), 30s),
            [](auto work) { QMetaObject::invokeMethod(qApp, std::move(work), Qt::QueuedConnection); });
        drives.onFound = [&](const auto&) { ++answers; };
        const auto start = std::chrono::steady_clock::now();
        drives.Ask();
        drives.Ask();
        EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
        EXPECT_TRUE(RunUntil([&] { return !service.asked.empty(); }));
    }
    service.Answer();
    RunFor(100ms);
    EXPECT_EQ(answers, 0);
    EXPECT_EQ(service.asked.size(), 1U);
}

} // namespace
} // namespace zentaro::live
