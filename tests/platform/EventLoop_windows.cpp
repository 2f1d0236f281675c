#include "tests/platform/EventLoop.h"

#include <chrono>
#include <windows.h>

namespace zentaro::platform {
namespace {

EventLoop* g_loop = nullptr;

void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
{
    if (const auto call = g_loop->meanwhile)
        call();
}

} // namespace

struct EventLoop::Timer {
    UINT_PTR number = SetTimer(nullptr, 0, 10, &OnTimer);
};

EventLoop::EventLoop()
    : m_timer(std::make_unique<Timer>())
{
    g_loop = this;
}

EventLoop::~EventLoop()
{
    KillTimer(nullptr, m_timer->number);
}

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
