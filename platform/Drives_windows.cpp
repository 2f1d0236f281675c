#include "platform/Drives.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <windows.h>

namespace zentaro::platform {

namespace {

constexpr std::size_t kNameRoom = 255; // characters

/// An empty drive would ask for a disc in a box of the system's.
class NoSystemBoxes {
public:
    NoSystemBoxes() { SetThreadErrorMode(SEM_FAILCRITICALERRORS, &m_before); }
    NoSystemBoxes(const NoSystemBoxes&) = delete;
    ~NoSystemBoxes() { SetThreadErrorMode(m_before, nullptr); }

private:
    DWORD m_before = 0;
};

OpticalDrive ReadDrive(const std::string& name)
{
    const auto root = name + "\\";
    OpticalDrive drive{ name, {}, false, {} };
    std::array<char, kNameRoom> label{};
    DWORD serial = 0;
    if (GetVolumeInformationA(root.c_str(), label.data(), kNameRoom, &serial, nullptr, nullptr, nullptr, 0) == 0)
        return drive;
    drive.label = std::string(label.data());
    drive.disc = std::to_string(serial);
    const auto attributes = GetFileAttributesA((root + "Video_TS").c_str());
    drive.hasVideoFolder = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return drive;
}

class WindowsDrives : public Drives {
public:
    std::vector<OpticalDrive> Find() override
    {
        const NoSystemBoxes noBoxes;
        std::array<char, kNameRoom> buffer{};
        const auto reported = GetLogicalDriveStringsA(kNameRoom, buffer.data());
        std::string_view rest(buffer.data(), reported <= kNameRoom ? reported : 0);
        std::vector<OpticalDrive> drives;
        // Each entry is a name, a backslash and a NUL.
        for (auto at = rest.find('\\'); at != rest.npos; at = rest.find('\\')) {
            const std::string name(rest.substr(0, at));
            if (GetDriveTypeA((name + "\\").c_str()) == DRIVE_CDROM)
                drives.push_back(ReadDrive(name));
            rest.remove_prefix(std::min(at + 2, rest.size()));
        }
        return drives;
    }
};

} // namespace

std::unique_ptr<Drives> Drives::Open()
{
    return std::make_unique<WindowsDrives>();
}

} // namespace zentaro::platform
