#pragma once

#include <string>

namespace zentaro::platform {

/// True for a path on a disc that is taken out, such as a memory stick, as far as its name tells.
bool IsOnRemovableDisc(const std::string& path);

/// True for a path on a drive of another machine. May take as long as that machine needs to answer.
bool IsOnOtherMachine(const std::string& path);

} // namespace zentaro::platform
