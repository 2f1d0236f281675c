#include "platform/Process.h"

#include <windows.h>

namespace zentaro::platform {

void EndProcess()
{
    DWORD code = 0;
    GetExitCodeProcess(GetCurrentProcess(), &code);
    ExitProcess(code);
}

} // namespace zentaro::platform
