#include "platform/Process.h"

#include <windows.h>

namespace zentaro::platform {

void EndProcess()
{
    DWORD code = 0;
    GetExitCodeProcess(GetCurrentProcess(), &code);
    ExitProcess(code);
}

// The end of a session reaches the window as a message.
void OnQuitRequest(std::function<void()>) { }

// Nothing here ends a process that way.
void OnForcedExit(std::function<void()>) { }

// The system's sound functions report by return value only.
void SilenceSoundLibrary() { }

} // namespace zentaro::platform
