#pragma once

#include <windows.h>

namespace zentaro::platform {

/// SetNamedPipeHandleState, behind a variable: Windows refuses the call for an anonymous pipe, which is what lets a run
/// go on, while Wine accepts it. A test under Wine puts a refusing one here.
extern decltype(&::SetNamedPipeHandleState) SetPipeState;

} // namespace zentaro::platform
