#pragma once

#include "base/Result.h"

#include <string>
#include <windows.h>

namespace zentaro::platform {

/// What was tried, with the system's error number.
inline Error SystemError(const std::string& what, DWORD number)
{
    return { static_cast<std::int32_t>(number), what + ": error " + std::to_string(number) };
}

} // namespace zentaro::platform
