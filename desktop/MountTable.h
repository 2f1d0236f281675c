#pragma once

#include <string>
#include <string_view>

namespace zentaro::desktop {

/// The type of the file system that holds the path, an absolute one without links, by the kernel's list of mounts
/// ("/proc/self/mountinfo"); empty where it tells none.
std::string FileSystemOf(std::string_view mounts, std::string_view path);

/// Whether a file system of that type lies on another machine, or is made of what comes from one.
bool IsRemoteFileSystem(std::string_view type);

} // namespace zentaro::desktop
