#pragma once

namespace zentaro::platform {

/// Ends the process at once: nothing after the call runs. On Windows with the code that the system holds for a running
/// process, elsewhere with 0.
[[noreturn]] void EndProcess();

} // namespace zentaro::platform
