#pragma once

#include <functional>

namespace zentaro::platform {

/// Calls `onQuit` from the event loop of this thread when the system asks the process to end in a way that does not
/// come through a window (Linux: SIGTERM, SIGINT and SIGHUP). Once per process.
void OnQuitRequest(std::function<void()> onQuit);

} // namespace zentaro::platform
