// Asks the window, like a window manager that wants to know whether it hangs, every 20 ms while it has much to do:
//   answer-watch PRELOAD PLAYER ADD FOLDER
// PLAYER is started on a display of its own, with PRELOAD before its libraries; ADD gives it all files of FOLDER.
// A line for each thing that is done: the longest and the middle time until an answer, in ms, and how many there were.
#include "tests/desktop/Desktop.h"
#include "tests/desktop/Wait.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <mutex>
#include <stdexcept>
#include <thread>

#include <X11/Xlib.h>
#undef None

namespace {

using namespace zentaro;
using namespace zentaro::trial;
using Clock = std::chrono::steady_clock;
namespace fs = std::filesystem;

/// The window manager, as far as one is needed here: only it hears the answers. In a thread of its own.
class Manager {
public:
    explicit Manager(const std::string& display)
        : m_display(XOpenDisplay(display.c_str()))
    {
        if (m_display == nullptr)
            throw std::runtime_error("no display");
        XSelectInput(m_display, DefaultRootWindow(m_display), SubstructureNotifyMask | SubstructureRedirectMask);
        XSync(m_display, False);
        m_thread = std::thread([this] { Run(); });
    }
    ~Manager()
    {
        m_isOver = true;
        m_thread.join();
        XCloseDisplay(m_display);
    }
    /// Asks this window from now on.
    void Ask(::Window window) { m_window = window; }
    /// The times since the last call.
    std::vector<double> Take()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_times, {});
    }

private:
    void Run()
    {
        long number = 0;
        bool isAnswered = true;
        auto asked = Clock::now();
        while (!m_isOver) {
            if (m_window != 0 && isAnswered && Clock::now() - asked > kPause) {
                isAnswered = false;
                asked = Clock::now();
                Send(++number);
            }
            if (XPending(m_display) == 0) {
                std::this_thread::sleep_for(1ms);
                continue;
            }
            XEvent event;
            XNextEvent(m_display, &event);
            if (event.type == ClientMessage && event.xclient.data.l[1] == number && !isAnswered) {
                isAnswered = true;
                const std::chrono::duration<double, std::milli> time = Clock::now() - asked;
                const std::lock_guard lock(m_mutex);
                m_times.push_back(time.count());
            }
            Serve(event);
        }
    }
    void Send(long number)
    {
        XEvent question{};
        question.xclient.type = ClientMessage;
        question.xclient.window = m_window;
        question.xclient.message_type = XInternAtom(m_display, "WM_PROTOCOLS", False);
        question.xclient.format = 32;
        question.xclient.data.l[0] = static_cast<long>(XInternAtom(m_display, "_NET_WM_PING", False));
        question.xclient.data.l[1] = number;
        question.xclient.data.l[2] = static_cast<long>(m_window);
        XSendEvent(m_display, m_window, False, NoEventMask, &question);
        XFlush(m_display);
    }
    void Serve(XEvent& event)
    {
        if (event.type == MapRequest) {
            XMapWindow(m_display, event.xmaprequest.window);
        } else if (event.type == MapNotify && event.xmap.override_redirect == 0) {
            XSetInputFocus(m_display, event.xmap.window, RevertToParent, CurrentTime);
        } else if (event.type == UnmapNotify && m_window != 0) {
            XSetInputFocus(m_display, m_window, RevertToParent, CurrentTime);
        } else if (event.type == ConfigureRequest) {
            const auto& asked = event.xconfigurerequest;
            XWindowChanges changes{ asked.x, asked.y, asked.width, asked.height, 0, 0, Above };
            XConfigureWindow(m_display, asked.window,
                static_cast<unsigned>(asked.value_mask & ~(CWSibling | CWStackMode)), &changes);
        }
        XFlush(m_display);
    }

    static constexpr auto kPause = 20ms;

    Display* m_display;
    std::atomic<::Window> m_window = 0;
    std::atomic<bool> m_isOver = false;
    std::mutex m_mutex;
    std::vector<double> m_times;
    std::thread m_thread;
};

void Tell(const char* what, Manager& manager, std::chrono::seconds time)
{
    std::this_thread::sleep_for(time);
    auto times = manager.Take();
    if (times.empty())
        throw std::runtime_error(std::string("no answer: ") + what);
    std::sort(times.begin(), times.end());
    const auto late = std::count_if(times.begin(), times.end(), [](double each) { return each > 100; });
    std::printf("%-12s longest %6.1f ms, middle %5.1f ms, %zu answers, %td over 100 ms\n", what, times.back(),
        times[times.size() / 2], times.size(), late);
    std::fflush(stdout);
}

std::vector<std::string> FilesIn(const std::string& folder)
{
    std::vector<std::string> files;
    for (const auto& entry : fs::directory_iterator(folder))
        files.push_back(entry.path().string());
    std::sort(files.begin(), files.end());
    return files;
}

void Measure(const std::string& preload, const std::string& player, const std::string& add, const std::string& folder)
{
    Desktop desktop(1280, 800, Desktop::WindowManager::None);
    Manager manager(desktop.Name());
    Process process({ "DISPLAY=" + desktop.Name(), "LD_PRELOAD=" + preload, player });
    std::vector<::Window> windows;
    if (!WaitUntil([&] { return !(windows = desktop.WindowsOf(process.Id())).empty(); }))
        throw std::runtime_error("no window came");
    const auto window = windows.front();
    std::this_thread::sleep_for(10s);
    manager.Ask(window);
    Tell("idle", manager, 5s);
    auto words = FilesIn(folder);
    words.insert(words.begin(), { "DISPLAY=" + desktop.Name(), add });
    Process adding(words);
    Tell("adding", manager, 15s);
    const auto press = [&](const char* what, const char* keys, std::chrono::seconds time) {
        desktop.Press(keys);
        Tell(what, manager, time);
    };
    press("play", "space", 8s);
    for (int i = 0; i < 3; ++i)
        press("next", "Next", 6s);
    press("fullscreen", "f", 3s);
    press("window", "f", 3s);
    press("snapshot", "s", 3s);
    press("pause", "ctrl+p", 3s);
    press("stop", "ctrl+s", 3s);
    press("options", "alt+t", 2s);
    press("options", "Return", 4s);
    press("closed", "Escape", 2s);
    press("help", "alt+h", 2s);
    press("menu away", "Escape", 2s);
    process.Signal(SIGTERM);
    if (!process.WaitForEnd(10s))
        process.Kill();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::fputs("answer-watch PRELOAD PLAYER ADD FOLDER\n", stderr);
        return 2;
    }
    try {
        XInitThreads();
        Measure(argv[1], argv[2], argv[3], argv[4]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
