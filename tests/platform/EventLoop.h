#pragma once

#include <functional>
#include <memory>
#include <string>

namespace zentaro::platform {

/// The event loop of a test's thread: Qt's on Linux, the message loop on Windows.
class EventLoop {
public:
    EventLoop();
    ~EventLoop();

    /// Called every 10 ms by whichever loop handles this thread's events, also by one within the code under test.
    std::function<void()> meanwhile;

private:
    struct Timer;
    std::unique_ptr<Timer> m_timer;
};

/// Runs the loop until the condition holds; false when that takes too long.
bool RunUntil(const std::function<bool()>& condition);

/// Keeps the sockets and locks of this test in that folder, on systems where they lie in one of the user's.
void UseAsRuntimeFolder(const std::string& folder);

} // namespace zentaro::platform
