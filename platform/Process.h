#pragma once

#include <functional>

namespace zentaro::platform {

/// Ends the process at once: nothing after the call runs. On Windows with the code that the system holds for a running
/// process, elsewhere with 0.
[[noreturn]] void EndProcess();

/// Calls `onQuit` from the event loop of this thread when the system asks the process to end in a way that does not
/// come through a window (Linux: SIGTERM, SIGINT and SIGHUP). Once per process.
void OnQuitRequest(std::function<void()> onQuit);

/// Keeps the system's sound library from writing to the terminal when there is no sound device. Call once, before the
/// first sound.
void SilenceSoundLibrary();

} // namespace zentaro::platform
