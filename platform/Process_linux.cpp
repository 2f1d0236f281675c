#include "platform/Process.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <cstdio>
#include <dlfcn.h>
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

using ErrorHandler = void (*)(const char* file, int line, const char* function, int error, const char* format, ...);

void SayNothing(const char*, int, const char*, int, const char*, ...) { }

} // namespace

void EndProcess()
{
    std::fflush(nullptr);
    _exit(0);
}

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

void SilenceSoundLibrary()
{
    // Looked up at run time: only the engine's sound plug-in needs the library, and not on every machine.
    void* const library = dlopen("libasound.so.2", RTLD_LAZY | RTLD_LOCAL);
    if (library == nullptr)
        return;
    using SetHandler = int (*)(ErrorHandler);
    if (const auto setHandler = reinterpret_cast<SetHandler>(dlsym(library, "snd_lib_error_set_handler")))
        setHandler(&SayNothing);
}

} // namespace zentaro::platform
