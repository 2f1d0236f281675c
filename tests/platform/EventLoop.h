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

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

/// Runs the loop until the condition holds; false when that takes too long.
bool RunUntil(const std::function<bool()>& condition);

/// Keeps the sockets and locks of this test in that folder, on systems where they lie in one of the user's.
void UseAsRuntimeFolder(const std::string& folder);

} // namespace zentaro::platform
