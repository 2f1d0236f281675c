#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>

namespace zentaro {

/// Runs a piece of work on the window's thread, later.
using Post = std::function<void(std::function<void()>)>;

/// Runs `work` in a thread of its own and then, on the window's thread, what it has given back. Nobody waits for work
/// that does not end, such as the reading of a dead disk, not even the end of the process.
void RunInBackground(const Post& post, std::function<std::function<void()>()> work);

/// What the background threads of one owner go through, so that none of them begins once the owner is gone. Any thread.
class Gate {
public:
    /// Runs `work`, unless the gate is closed.
    void Pass(const std::function<void()>& work);
    /// Waits a tenth of a second at most for those that are inside.
    void Close();
    bool IsOpen() const;

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_left;
    int m_inside = 0;
    bool m_isOpen = true;
};

} // namespace zentaro
