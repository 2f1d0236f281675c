#include "tests/platform/EventLoop.h"

#include <chrono>
#include <windows.h>

namespace zentaro::platform {

void PrepareEventLoop() { } // a thread has its queue of messages from the first look into it

bool RunUntil(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    bool holds = condition();
    while (!holds && std::chrono::steady_clock::now() < end) {
        MSG message;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
        holds = condition();
    }
    return holds;
}

void UseAsRuntimeFolder(const std::string&) { }

} // namespace zentaro::platform
