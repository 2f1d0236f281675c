#pragma once

#include "platform/Bus_linux.h"
#include "platform/Drives.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace zentaro::platform {

/// Hears what the disk service says of its drives and discs.
class DiskServiceWatch final : private BusClient {
public:
    /// `onChange` is called on a thread of the object's, also when the service or the bus comes or goes.
    DiskServiceWatch(
        std::string busAddress, std::function<void()> onChange, std::chrono::milliseconds retry = kBusRetry);
    ~DiskServiceWatch() override;

private:
    void Connected(sd_bus* bus) override;
    void Speak(sd_bus*) override { }
    void Lost() override;
    static int OnRuleHolds(sd_bus_message*, void*, sd_bus_error*);
    static int OnSignal(sd_bus_message*, void* watch, sd_bus_error*);

    std::function<void()> m_onChange;
    BusThread m_thread; // the last: it calls from the beginning
};

/// Drives as the disk service (org.freedesktop.UDisks2) of the bus at an address knows them: it answers without
/// touching a drive.
class DiskServiceDrives : public Drives {
public:
    /// `patience`: how long the service may take to answer.
    DiskServiceDrives(std::string busAddress, std::chrono::milliseconds patience);

    std::vector<OpticalDrive> Find() override;
    bool Watch(std::function<void()> onChange) override;

private:
    /// What discs were asked, by drive, disc and mount point.
    using Answers = std::map<std::string, bool>;

    bool HasVideoFolder(const OpticalDrive& drive, const std::string& mountPoint, Answers& answers) const;

    std::string m_busAddress;
    std::chrono::milliseconds m_patience;
    /// Each disc is read once, soon after it came, and may sleep on.
    Answers m_answers;
    std::unique_ptr<DiskServiceWatch> m_watch;
};

} // namespace zentaro::platform
