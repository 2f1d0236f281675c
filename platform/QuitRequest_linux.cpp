#include "platform/QuitRequest.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace zentaro::platform {

namespace {

std::array<int, 2> g_pipe{ -1, -1 };

// Nothing but a write is safe in here.
void OnSignal(int)
{
    const char note = 0;
    [[maybe_unused]] const auto written = write(g_pipe[1], &note, 1);
}

} // namespace

void OnQuitRequest(std::function<void()> onQuit)
{
    if (pipe2(g_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto* const notifier = new QSocketNotifier(g_pipe[0], QSocketNotifier::Read);
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [notifier, quit = std::move(onQuit)] {
        notifier->setEnabled(false);
        quit();
    });
    struct sigaction action = {};
    action.sa_handler = &OnSignal;
    action.sa_flags = SA_RESTART;
    for (const int signal : { SIGTERM, SIGINT, SIGHUP })
        sigaction(signal, &action, nullptr);
}

} // namespace zentaro::platform
