#include "platform/MediaControl.h"
#include "platform/Window.h"

#include <windows.h>

namespace zentaro::platform {

Result<std::string> WindowSystem(const std::string&)
{
    return std::string();
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

// Direct3D brings a software renderer of its own and chooses by itself.
bool HasGraphicsCard()
{
    return true;
}

// Media keys reach the window as messages.
std::unique_ptr<MediaControl> MediaControl::Open(std::function<void(MediaCommand)>)
{
    return nullptr;
}

} // namespace zentaro::platform
