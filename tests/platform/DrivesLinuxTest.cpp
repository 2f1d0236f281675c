#include "platform/Drives_linux.h"
#include "tests/platform/DiskService.h"
#include "tests/platform/PrivateBus.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

#include <filesystem>
#include <future>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class DrivesLinuxTest : public testing::Test {
protected:
    std::vector<std::string> Found()
    {
        // The service answers while the drives are asked for.
        auto answer = std::async(std::launch::async, [&] { return drives.Find(); });
        while (answer.wait_for(0s) != std::future_status::ready)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        std::vector<std::string> texts;
        for (const auto& drive : answer.get())
            texts.push_back(drive.name + "=" + drive.label.value_or("-") + (drive.hasVideoFolder ? " video" : ""));
        return texts;
    }

    int count = 0;
    QCoreApplication application{ count, nullptr };
    WorkingFolder files;
    PrivateBus bus;
    DiskService service{ bus.Address() };
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
    service.InsertDisc("/dev/sr10", "A (B");
    service.InsertDisc("/dev/sr9", "");
    EXPECT_THAT(Found(), ElementsAre("/dev/sr9=", "/dev/sr10=A (B"));
    const std::string longest(255, 'x');
    service.InsertDisc("/dev/sr10", longest);
    service.RemoveDrive("/dev/sr9");
    EXPECT_THAT(Found(), ElementsAre("/dev/sr10=" + longest));
    for (const auto& question : service.asked)
        EXPECT_EQ(question, "org.freedesktop.DBus.ObjectManager.GetManagedObjects");
}

TEST_F(DrivesLinuxTest, TheVideoFolderIsFoundWhereADiscIsMounted)
{
    std::filesystem::create_directories(files / "mounted/video_ts");
    for (const auto* const name : { "mounted", "gone" }) {
        service.AddDrive(files / "missing.iso");
        service.InsertDisc(files / "missing.iso", "X", { FileName(files / name) });
        const auto* const found = name == std::string("mounted") ? "=X video" : "=X";
        EXPECT_THAT(Found(), ElementsAre((files / "missing.iso") + found));
    }
}

} // namespace
} // namespace zentaro::platform
