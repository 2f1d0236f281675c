#include "platform/Drives_linux.h"
#include "tests/platform/BusService.h"
#include "tests/platform/DiskService.h"

#include <gmock/gmock.h>

#include <atomic>
#include <filesystem>
#include <functional>
#include <future>
#include <optional>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class DrivesLinuxTest : public OnPrivateBus {
protected:
    /// Lets the service answer while the drives are asked for.
    std::vector<OpticalDrive> Find()
    {
        auto answer = std::async(std::launch::async, [&] { return drives.Find(); });
        EXPECT_TRUE(RunUntil([&] { return answer.wait_for(0s) == std::future_status::ready; }));
        return answer.get();
    }
    std::vector<std::string> Found()
    {
        std::vector<std::string> texts;
        for (const auto& drive : Find())
            texts.push_back(drive.name + "=" + drive.label.value_or("-") + (drive.hasVideoFolder ? " video" : ""));
        return texts;
    }
    std::string Image(const std::string& name, const std::string& folder) const
    {
        const auto root = files / (name + ".d");
        std::filesystem::create_directories(root + "/" + folder);
        const auto image = files / (name + ".iso");
        const auto command = "genisoimage -quiet -udf -o " + image + " " + root + " 2>&1";
        EXPECT_EQ(std::system(command.c_str()), 0);
        return image;
    }

    WorkingFolder files;
    DiskService service{ bus };
    DiskServiceDrives drives{ bus.Address(), 10s };
};

TEST_F(DrivesLinuxTest, OpticalDrivesComeAndGoWithTheirDiscs)
{
    EXPECT_THAT(Found(), ElementsAre());
    service.AddDrive("/dev/sr10");
    service.AddDrive("/dev/sr9");
    service.AddDrive("/dev/sda", {});
    service.AddDrive("/dev/sdb", { "flash_sd" });
    EXPECT_THAT(Found(), ElementsAre("/dev/sr9=-", "/dev/sr10=-"));
    service.SetDisc("/dev/sr10", "A (B");
    service.SetDisc("/dev/sr9", "");
    EXPECT_THAT(Found(), ElementsAre("/dev/sr9=", "/dev/sr10=A (B"));
    const std::string longest(255, 'x');
    service.SetDisc("/dev/sr10", longest);
    service.RemoveDrive("/dev/sr9");
    EXPECT_THAT(Found(), ElementsAre("/dev/sr10=" + longest));
    for (const auto& question : service.asked)
        EXPECT_EQ(question, "org.freedesktop.DBus.ObjectManager.GetManagedObjects");
}

TEST_F(DrivesLinuxTest, TheVideoFolderIsFoundOnTheDeviceOrWhereItIsMounted)
{
    const auto movie = Image("movie", "VIDEO_TS");
    const auto data = Image("data", "PHOTOS");
    const auto mounted = files / "mounted";
    std::filesystem::create_directories(mounted + "/video_ts");
    for (const auto& device : { movie, data, files / "missing.iso" }) {
        service.AddDrive(device);
        service.SetDisc(device, "X");
    }
    EXPECT_THAT(Found(), ElementsAre(data + "=X", movie + "=X video", (files / "missing.iso") + "=X"));
    service.SetDisc(data, "X", { FileName(mounted) });
    service.SetDisc(movie, "X", { FileName(files / "gone") });
    EXPECT_THAT(Found(), ElementsAre(data + "=X video", movie + "=X", (files / "missing.iso") + "=X"));
}

TEST_F(DrivesLinuxTest, ADiscIsReadOnceAndTheNextOneIsAnother)
{
    const auto movie = Image("movie", "VIDEO_TS");
    service.AddDrive(movie);
    service.SetDisc(movie, "X");
    const auto first = Find();
    std::filesystem::remove(movie); // whoever reads it again finds nothing
    const auto again = Find();
    ASSERT_EQ(again.size(), 1U);
    EXPECT_TRUE(again[0].hasVideoFolder);
    EXPECT_EQ(again[0].disc, first[0].disc);
    service.SetDisc(movie, "X");
    EXPECT_NE(Find()[0].disc, first[0].disc);
    EXPECT_FALSE(Find()[0].hasVideoFolder);
}

TEST_F(DrivesLinuxTest, AServiceIsWaitedForWithinPatienceAndWithoutOneThereAreNoDrives)
{
    service.answersAtOnce = false;
    service.AddDrive("/dev/sr0");
    auto late = std::async(std::launch::async, [&] { return drives.Find(); });
    ASSERT_TRUE(RunUntil([&] { return !service.asked.empty(); }));
    EXPECT_EQ(late.wait_for(0s), std::future_status::timeout);
    service.Answer();
    ASSERT_TRUE(RunUntil([&] { return late.wait_for(0s) == std::future_status::ready; }));
    EXPECT_EQ(late.get().size(), 1U);
    EXPECT_TRUE(DiskServiceDrives(bus.Address(), 50ms).Find().empty());
    const PrivateBus empty;
    for (const auto& address : { empty.Address(), "unix:path=" + (files / "nobody"), std::string("nonsense:") })
        EXPECT_TRUE(DiskServiceDrives(address, 10s).Find().empty()) << address;
}

TEST_F(DrivesLinuxTest, WhoeverWatchesHearsOfDiscsOfTheServiceAndOfTheBusAndOfNothingElse)
{
    std::atomic<int> told = 0;
    ASSERT_TRUE(drives.Watch([&] { ++told; }));
    const auto isTold = [&](const std::function<void()>& change) {
        const int before = told;
        change();
        return RunUntil([&] { return told > before; });
    };
    EXPECT_TRUE(isTold([] {})) << "once the rules hold";
    const auto comes = [&](const char* object) {
        service.Tell("Added", QDBusObjectPath(object), QVariant::fromValue(Interfaces()));
    };
    EXPECT_TRUE(isTold([&] { comes("/org/freedesktop/UDisks2/block_devices/sr0"); }));
    EXPECT_TRUE(isTold([&] { service.RemoveDrive("/dev/sr0"); }));
    const int before = told;
    comes("/org/freedesktop/UDisks2/jobs/1");
    service.TellOfProperties("/dev/sda", "drives", "Drive.Ata");
    for (const auto* const interface : { "Drive", "Filesystem", "Block" })
        EXPECT_TRUE(isTold([&] { service.TellOfProperties("/dev/sr0", "drives", interface); })) << interface;
    EXPECT_EQ(told, before + 3);
    EXPECT_TRUE(isTold([&] { bus.Restart(); }));
    const auto noAnswer = [](const QDBusMessage&) { return std::nullopt; };
    std::optional<BusService> later;
    const int rules = told;
    ASSERT_TRUE(RunUntil([&] { return told > rules; })) << "the bus is back";
    EXPECT_TRUE(isTold([&] { later.emplace(bus, QStringList("org.freedesktop.UDisks2"), noAnswer); }));
    EXPECT_TRUE(isTold([&] { later.reset(); }));
}

} // namespace
} // namespace zentaro::platform
