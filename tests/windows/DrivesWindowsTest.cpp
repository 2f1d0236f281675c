#include "platform/Drives.h"
#include "tests/platform/WorkingFolder.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <vector>
#include <windows.h>
#include <winioctl.h>

namespace zentaro::platform {
namespace {

/// As Wine's manager of drives takes it; both texts lie behind it.
struct WineDrive {
    ULONG size = 0;
    ULONG type = 0;
    ULONG fileSystem = 0;
    DWORD serial = 0;
    ULONGLONG device = 0;
    WCHAR letter = 0;
    USHORT mountPointOffset = 0;
    USHORT deviceOffset = 0;
    USHORT labelOffset = 0;
};

/// Empty where this is no Wine.
std::string UnixPath(const std::string& path)
{
    using Function = char*(__cdecl*)(LPCWSTR);
    const auto function = reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), "wine_get_unix_file_name")));
    const std::wstring wide(path.begin(), path.end());
    return function != nullptr ? function(wide.c_str()) : "";
}

/// A drive of this prefix that goes with the value. `folder` is its root; the label is read when it is made.
class TestDrive {
public:
    TestDrive(char letter, ULONG type, const std::string& folder)
        : m_letter(letter)
    {
        EXPECT_TRUE(Define(type, folder));
    }
    TestDrive(const TestDrive&) = delete;
    ~TestDrive() { Define(DRIVE_NO_ROOT_DIR, ""); }

private:
    bool Define(ULONG type, const std::string& folder) const
    {
        WineDrive drive;
        std::vector<char> request(sizeof drive + folder.size() + 1);
        drive.size = static_cast<ULONG>(request.size());
        drive.type = type;
        drive.letter = static_cast<WCHAR>(m_letter);
        drive.mountPointOffset = folder.empty() ? 0 : sizeof drive;
        std::memcpy(request.data(), &drive, sizeof drive);
        std::memcpy(request.data() + sizeof drive, folder.c_str(), folder.size() + 1);
        constexpr DWORD define = CTL_CODE('m', 32, METHOD_BUFFERED, FILE_READ_ACCESS | FILE_WRITE_ACCESS);
        const auto manager = CreateFileA("\\\\.\\MountPointManager", GENERIC_READ | GENERIC_WRITE,
            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
        DWORD written = 0;
        const bool isDefined =
            DeviceIoControl(manager, define, request.data(), drive.size, nullptr, 0, &written, nullptr);
        CloseHandle(manager);
        return isDefined;
    }

    char m_letter;
};

TEST(DrivesWindows, OpticalDrivesAreListedWithTheirDiscs)
{
    const WorkingFolder folder;
    const auto root = UnixPath(folder.Path());
    if (root.empty())
        GTEST_SKIP() << "drives can be made under Wine only";
    for (const auto* const disc : { "movie\\VIDEO_TS", "data", "fixed\\VIDEO_TS" })
        std::filesystem::create_directories(folder / disc);
    EXPECT_TRUE(ReplaceTextFile(folder / "movie\\.windows-label", "MOVIE (1)\n"));
    EXPECT_TRUE(ReplaceTextFile(folder / "movie\\.windows-serial", "1234ABCD\n"));
    const auto drives = Drives::Open();
    {
        const TestDrive movie('l', DRIVE_CDROM, root + "/movie");
        const TestDrive data('k', DRIVE_CDROM, root + "/data");
        const TestDrive fixed('n', DRIVE_FIXED, root + "/fixed");
        std::string found;
        for (const auto& drive : drives->Find())
            found += drive.name + (drive.hasVideoFolder ? " " + *drive.label + " " + drive.disc : " data") + "\n";
        EXPECT_EQ(found, "K: data\nL: MOVIE (1) " + std::to_string(0x1234ABCD) + "\n");
    }
    EXPECT_TRUE(drives->Find().empty());
}

} // namespace
} // namespace zentaro::platform
