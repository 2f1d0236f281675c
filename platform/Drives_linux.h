#pragma once

#include "platform/Drives.h"

#include <chrono>
#include <map>
#include <string>

namespace zentaro::platform {

/// Drives as the disk service (org.freedesktop.UDisks2) of the bus at an address knows them: it answers without
/// touching a drive.
class DiskServiceDrives : public Drives {
public:
    /// `patience`: how long the service may take to answer.
    DiskServiceDrives(std::string busAddress, std::chrono::milliseconds patience);

    std::vector<OpticalDrive> Find() override;

private:
    std::string m_busAddress;
    std::chrono::milliseconds m_patience;
    /// What the discs themselves were asked, by disc and mount point: each is read once, soon after it came, and may
    /// sleep on.
    std::map<std::string, bool> m_hasVideoFolder;
};

} // namespace zentaro::platform
