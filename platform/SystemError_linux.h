#pragma once

#include "base/Result.h"

#include <cerrno>
#include <cstring>
#include <string>

namespace zentaro::platform {

/// The system's last error, with what was tried. Call it before anything else can change `errno`.
inline Error SystemError(const std::string& what)
{
    const int number = errno;
    return { number, what + ": " + std::strerror(number) };
}

} // namespace zentaro::platform
