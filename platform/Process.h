#pragma once

#include <functional>

namespace zentaro::platform {

/// Ends the process at once: nothing after the call runs. On Windows with the code that the system holds for a running
/// process, elsewhere with 0.
[[noreturn]] void EndProcess();

/// Calls `onQuit` from the event loop of this thread when the system asks the process to end in a way that does not
/// come through a window (Linux: SIGTERM, SIGINT and SIGHUP). Once per process.
void OnQuitRequest(std::function<void()> onQuit);

/// Calls `onExit` on this thread when something else ends the process by exit(), which nobody else hears of in time. On
/// Linux Qt does so on this thread when the display goes, and a library of the display's on a thread of the engine's;
/// then this thread's event loop has some seconds to come to the call. `onExit` may end the process. Once per process.
void OnForcedExit(std::function<void()> onExit);

/// Keeps the system's sound library from writing to the terminal when there is no sound device. Call once, before the
/// first sound.
void SilenceSoundLibrary();

} // namespace zentaro::platform
