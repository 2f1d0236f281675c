#include "platform/Process.h"

#include <cstdlib>
#include <windows.h>

namespace zentaro::platform {

void EndProcess()
{
    DWORD code = 0;
    GetExitCodeProcess(GetCurrentProcess(), &code);
    // Not ExitProcess: that stops the other threads wherever they are and then lets each library tidy up, and the
    // compiler's own waits there for good when the count of threads that read its list of keys is not what it should
    // be.
    TerminateProcess(GetCurrentProcess(), code);
    std::abort();
}

// The end of a session reaches the window as a message.
void OnQuitRequest(std::function<void()>) { }

// Nothing here ends a process that way.
void OnForcedExit(std::function<void()>) { }

// The system's sound functions report by return value only.
void SilenceSoundLibrary() { }

} // namespace zentaro::platform
