#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zentaro::platform {

struct OpticalDrive {
    std::string name;                 ///< as the system calls it: "D:", "/dev/sr0"
    std::optional<std::string> label; ///< the disc's volume label; nothing when no volume can be read
    bool hasVideoFolder = false;      ///< the folder VIDEO_TS lies in the disc's root
    std::string disc;                 ///< differs from disc to disc as far as the system can tell them apart
};

/// The optical drives of the machine.
class Drives {
public:
    virtual ~Drives() = default;

    /// In the system's order; none when the system cannot say. Mounts nothing. A drive that spins up can hold the
    /// answer up for many seconds, so never on the window's thread. One call at a time.
    virtual std::vector<OpticalDrive> Find() = 0;

    /// From now on `onChange` is called, on any thread, when a drive or a disc may have come or gone. False where the
    /// system does not tell: then Find() is to be asked now and then.
    virtual bool Watch(std::function<void()> /*onChange*/) { return false; }

    static std::unique_ptr<Drives> Open();
};

} // namespace zentaro::platform
