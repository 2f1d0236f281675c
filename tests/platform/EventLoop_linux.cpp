#include "tests/platform/EventLoop.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdlib>

namespace zentaro::platform {

using namespace std::chrono_literals;

struct EventLoop::Parts {
    int count = 0;
    QCoreApplication application{ count, nullptr };
};

EventLoop::EventLoop()
    : m_parts(std::make_unique<Parts>())
{
}

EventLoop::~EventLoop() = default;

bool RunUntil(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + 30s;
    bool holds = condition();
    while (!holds && std::chrono::steady_clock::now() < end) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        holds = condition();
    }
    return holds;
}

void UseAsRuntimeFolder(const std::string& folder)
{
    setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);
}

} // namespace zentaro::platform
