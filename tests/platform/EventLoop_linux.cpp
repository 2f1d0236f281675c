#include "tests/platform/EventLoop.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>
#include <cstdlib>

namespace zentaro::platform {

using namespace std::chrono_literals;

struct EventLoop::Timer {
    int count = 0;
    QCoreApplication application{ count, nullptr };
    QTimer timer;
};

EventLoop::EventLoop()
    : m_timer(std::make_unique<Timer>())
{
    QObject::connect(&m_timer->timer, &QTimer::timeout, [this] {
        if (const auto call = meanwhile)
            call();
    });
    m_timer->timer.start(10ms);
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
