#pragma once

#include "platform/Files_linux.h"

#include <string>
#include <sys/types.h>
#include <vector>

namespace zentaro::platform {

/// Neither end has the number of a standard stream, and neither is handed on to other programs.
struct Pipe {
    FileDescriptor readEnd; ///< never waits
    FileDescriptor writeEnd;
};

/// 0, or the system's error code.
int OpenPipe(Pipe& pipe);

struct SpawnRequest {
    const char* image;
    std::vector<std::string> arguments; ///< with argument 0
    std::string workDir;
    int output; ///< a descriptor for both output streams, or -1: nowhere
};

/// Starts a program in a process group of its own, with nothing of what this process has open or has set. 0, or the
/// system's error code.
int Spawn(const SpawnRequest& request, pid_t& pid);

} // namespace zentaro::platform
