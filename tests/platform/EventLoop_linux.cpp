#include "tests/platform/EventLoop.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdlib>

namespace zentaro::platform {

void PrepareEventLoop()
{
    static int count = 0;
    static QCoreApplication application(count, nullptr);
}

bool RunUntil(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
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
