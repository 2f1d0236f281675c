#include "platform/RemovableDiscs.h"

#include "desktop/MountTable.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace zentaro::platform {

bool IsOnRemovableDisc(const std::string& path)
{
    // Where desktops mount what is plugged in.
    return path.starts_with("/media/") || path.starts_with("/run/media/");
}

bool IsOnOtherMachine(const std::string& path)
{
    std::error_code problem;
    const auto place = std::filesystem::weakly_canonical(path, problem).string();
    std::ifstream file("/proc/self/mountinfo");
    const std::string mounts{ std::istreambuf_iterator<char>(file), {} };
    return desktop::IsRemoteFileSystem(desktop::FileSystemOf(mounts, problem ? path : place));
}

} // namespace zentaro::platform
