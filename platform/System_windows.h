#pragma once

#include "base/Result.h"

#include <memory>
#include <string>
#include <string_view>
#include <windows.h>

namespace zentaro::platform {

/// What was tried, with the system's error number.
inline Error SystemError(const std::string& what, DWORD number)
{
    return { static_cast<std::int32_t>(number), what + ": error " + std::to_string(number) };
}

struct CloseObject {
    using pointer = HANDLE;
    void operator()(HANDLE object) const { CloseHandle(object); }
};
using SystemObject = std::unique_ptr<HANDLE, CloseObject>;

/// The names of a run's own folders and files are this, a number, and for a file that is to replace another one an end.
inline constexpr std::string_view kOurPrefix = "zentaro-";
inline constexpr std::string_view kReplacementSuffix = ".tmp";

/// Before a folder or a file of that name is made: as long as the handle is held, it is no leftover.
inline SystemObject MarkInUse(const std::string& name)
{
    return SystemObject(CreateMutexA(nullptr, FALSE, ("Global\\" + name).c_str()));
}
inline bool IsInUse(const std::string& name)
{
    return SystemObject(OpenMutexA(SYNCHRONIZE, FALSE, ("Global\\" + name).c_str())) != nullptr;
}

/// SetNamedPipeHandleState, behind a variable for a test of its success: Windows refuses the call for an anonymous
/// pipe, which is what lets a run go on.
extern decltype(&::SetNamedPipeHandleState) SetPipeState;

} // namespace zentaro::platform
