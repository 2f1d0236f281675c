#include "platform/Window.h"

#include <windows.h>

namespace zentaro::platform {

const char* WindowSystem()
{
    return "";
}

void SetTopmost(NativeWindow window, bool topmost)
{
    SetWindowPos(
        reinterpret_cast<HWND>(window), topmost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
}

void FlashWindowOnce(NativeWindow window)
{
    FlashWindow(reinterpret_cast<HWND>(window), TRUE);
}

} // namespace zentaro::platform
