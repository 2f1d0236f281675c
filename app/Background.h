#pragma once

#include <functional>

namespace zentaro {

/// Runs a piece of work on the window's thread, later.
using Post = std::function<void(std::function<void()>)>;

/// Runs `work` in a thread of its own and then, on the window's thread, what it has given back. Nobody waits for work
/// that does not end, such as the reading of a dead disk, not even the end of the process.
void RunInBackground(const Post& post, std::function<std::function<void()>()> work);

} // namespace zentaro
