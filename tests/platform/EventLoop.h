#pragma once

#include <functional>
#include <string>

namespace zentaro::platform {

/// Once, before anything else: this thread gets an event loop, Qt's on Linux, the message loop on Windows.
void PrepareEventLoop();

/// Runs the loop until the condition holds; false when that takes too long.
bool RunUntil(const std::function<bool()>& condition);

/// Keeps the sockets and locks of this test in that folder, on systems where they lie in one of the user's.
void UseAsRuntimeFolder(const std::string& folder);

} // namespace zentaro::platform
