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

/// SetNamedPipeHandleState, behind a variable: Windows refuses the call for an anonymous pipe, which is what lets a run
/// go on, while Wine accepts it. A test under Wine puts a refusing one here.
extern decltype(&::SetNamedPipeHandleState) SetPipeState;

} // namespace zentaro::platform
