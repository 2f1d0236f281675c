#pragma once

#include "base/Result.h"
#include "platform/FileDescriptor_linux.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace zentaro::platform {

/// A folder is ours alone when we own it and nobody else has any right in it.
bool IsPrivateFolder(std::uint32_t owner, std::uint32_t mode, std::uint32_t ownUser);

/// The user's own folder for sockets and locks, opened: "zentaro" in the session's runtime folder, otherwise
/// "zentaro-<user number>" in the temporary folder. Made when it is missing, refused when it is not ours alone.
Result<FileDescriptor> OpenRuntimeFolder();

/// Takes the file lock; false when another holder kept it all the time.
bool LockWithin(int descriptor, std::chrono::milliseconds timeout);

/// The system's folder for temporary files, without a trailing separator.
std::string TemporaryFolder();

} // namespace zentaro::platform
