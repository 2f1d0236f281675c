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
    /// What discs were asked, by drive, disc and mount point.
    using Answers = std::map<std::string, bool>;

    bool HasVideoFolder(const OpticalDrive& drive, const std::string& mountPoint, Answers& answers) const;

    std::string m_busAddress;
    std::chrono::milliseconds m_patience;
    /// Each disc is read once, soon after it came, and may sleep on.
    Answers m_answers;
};

} // namespace zentaro::platform
