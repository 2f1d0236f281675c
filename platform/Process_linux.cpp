#include "platform/Process.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <thread>
#include <unistd.h>
#include <utility>

namespace zentaro::platform {
namespace {

std::array<int, 2> g_pipe{ -1, -1 };

// Nothing but a write is safe in here.
void OnSignal(int)
{
    const char note = 0;
    [[maybe_unused]] const auto written = write(g_pipe[1], &note, 1);
}

constexpr auto kPatienceAtExit = std::chrono::seconds(3);

/// What is to be done before the process ends, once, and by whom.
struct LastDuty {
    std::thread::id thread;
    QObject* onThread = nullptr; // an object of that thread
    std::function<void()> work;
    std::mutex mutex;
    std::condition_variable done;
    bool isDone = false;
};

LastDuty& Duty()
{
    // Never destroyed: it is used when all else is.
    static auto* const duty = new LastDuty;
    return *duty;
}

void DoDuty()
{
    auto& duty = Duty();
    if (const auto work = std::exchange(duty.work, nullptr))
        work();
    const std::lock_guard lock(duty.mutex);
    duty.isDone = true;
    duty.done.notify_all();
}

void OnExit()
{
    auto& duty = Duty();
    if (std::this_thread::get_id() == duty.thread)
        return DoDuty();
    QMetaObject::invokeMethod(duty.onThread, &DoDuty, Qt::QueuedConnection);
    std::unique_lock lock(duty.mutex);
    duty.done.wait_for(lock, kPatienceAtExit, [&] { return duty.isDone; });
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
    auto* const notifier = new QSocketNotifier(g_pipe[0], QSocketNotifier::Read, QCoreApplication::instance());
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

void OnForcedExit(std::function<void()> onExit)
{
    Duty().thread = std::this_thread::get_id();
    Duty().onThread = new QObject;
    Duty().work = std::move(onExit);
    // Twice: while another thread waits in the one, this thread, for which the display has gone as well, may come to
    // the other.
    std::atexit(&OnExit);
    std::atexit(&OnExit);
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
