#include "app/DriveQueries.h"
#include "platform/Drives_linux.h"
#include "tests/desktop/Process.h"
#include "tests/live/LivePlayer.h"
#include "tests/platform/DiskService.h"
#include "tests/platform/PrivateBus.h"

#include <QCoreApplication>

#include <filesystem>

namespace zentaro::live {
namespace {

/// A video DVD. Its first menu has two buttons, waits for ever, and loops nothing: the left one plays a title of 3 s
/// that comes back to the menu, the right one a title of 2 s after which the disc ends.
const std::string kButtons = R"(<subpictures><stream>
<spu start="00:00:00.00" force="yes" highlight="buttons.png" select="buttons.png">
<button x0="100" y0="200" x1="300" y1="260"/><button x0="400" y0="200" x1="600" y1="260"/>
</spu></stream></subpictures>)";

const std::string kDisc = R"(<dvdauthor dest="disc"><vmgm><menus><video format="pal"/><pgc pause="inf">
<vob file="buttons.mpg"/><button>jump title 1;</button><button>jump title 2;</button></pgc></menus></vmgm>
<titleset><titles><video format="pal"/>
<pgc><vob file="long.mpg" chapters="0,1,2"/><post>call vmgm menu 1;</post></pgc>
<pgc><vob file="menu.mpg"/><post>exit;</post></pgc></titles></titleset></dvdauthor>)";

const std::string kScript = R"(set -e
movie() {
  ffmpeg -v error -nostdin -f lavfi -i "$1=size=720x576:rate=25:duration=$2" -f lavfi -i "sine=duration=$2" \
    -target pal-dvd -b:v 1M "$3"
}
movie testsrc 3 long.mpg
movie color 2 menu.mpg
ffmpeg -v error -nostdin -f lavfi -i color=white:size=720x576 -frames:v 1 \
  -vf "format=rgba,geq=r=255:g=255:b=255:a='255*between(Y,200,260)*(between(X,100,300)+between(X,400,600))'" buttons.png
spumux buttons.xml <menu.mpg >buttons.mpg
VIDEO_FORMAT=PAL dvdauthor -x disc.xml
genisoimage -quiet -dvd-video -V MOVIE -o disc.iso disc
)";

/// The folder in which it lies as "disc", which holds VIDEO_TS, and as "disc.iso".
std::string Movie()
{
    static const platform::WorkingFolder folder;
    [[maybe_unused]] static const bool isMade = [] {
        trial::WriteWholeFile(folder / "buttons.xml", kButtons);
        trial::WriteWholeFile(folder / "disc.xml", kDisc);
        trial::Process maker({ "sh", "-c", kScript }, folder.Path());
        EXPECT_EQ(maker.WaitForEnd(), 0) << maker.Output();
        return true;
    }();
    return folder / "disc";
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
        return RunUntil([&] { return player.Discs().Titles().present == title && Time() > 0; });
    }
    bool RunUntilIdle()
    {
        return RunUntil([&] { return !player.State().mediaControlsEnabled; });
    }
};

TEST_F(Discs, AFolderPlaysAndItsMenuWaitsForTheUser)
{
    PlayDisc(Movie());
    ASSERT_TRUE(RunUntilIn(0));
    // The menu's clock stands still short of its end, where a file's would count as ended.
    ASSERT_TRUE(RunUntil([&] { return player.State().length > 0 && Time() > 0.75 * player.State().length; }));
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
    EXPECT_EQ(played.size(), 1U);
    EXPECT_EQ(world.power.restarts, 0);
    EXPECT_EQ(world.dialogs.boxes.size(), 0U);
}

TEST_F(Discs, AnImageInsertedIntoADrivePlaysByItselfAndEndsWhenItIsPulledOut)
{
    const auto image = folder + "drive.iso";
    std::filesystem::copy_file(Movie() + ".iso", image);
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
    EXPECT_TRUE(played.empty());

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
    EXPECT_EQ(played.size(), 1U);
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

} // namespace
} // namespace zentaro::live
