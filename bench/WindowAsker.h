#pragma once

// First: the other library's names are macros.
#include "tests/desktop/Desktop.h"

#include <atomic>
#include <chrono>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <X11/Xlib.h>
#undef None

namespace zentaro {

/// Asks a window every 20 ms whether it hangs. It is the window manager, as far as one is needed: only that one hears
/// the answers. In a thread of its own.
class WindowAsker {
    using Clock = std::chrono::steady_clock;

public:
    explicit WindowAsker(const std::string& display)
        : m_display(XOpenDisplay(display.c_str()))
    {
        if (m_display == nullptr)
            throw std::runtime_error("no display");
        XSelectInput(m_display, DefaultRootWindow(m_display), SubstructureNotifyMask | SubstructureRedirectMask);
        XSync(m_display, False);
        m_thread = std::thread([this] { Run(); });
    }
    ~WindowAsker()
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
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
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

    static constexpr auto kPause = std::chrono::milliseconds(20);

    Display* m_display;
    std::atomic<::Window> m_window = 0;
    std::atomic<bool> m_isOver = false;
    std::mutex m_mutex;
    std::vector<double> m_times;
    std::thread m_thread;
};

} // namespace zentaro
