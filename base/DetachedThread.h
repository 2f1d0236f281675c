#pragma once

#include <memory>
#include <mutex>
#include <thread>
#include <utility>

namespace zentaro {

/// Starts a thread that nobody waits for. Throws std::system_error when the system has none to give; `work` is then not
/// called.
template <class Work> void StartDetached(Work work)
{
    // Where mingw-w64 makes the threads, one that is being detached while it ends gives back twice what belongs to it,
    // and two later threads get the same work, while another's is never done. So none ends before it is detached.
    const auto detaching = std::make_shared<std::mutex>();
    const std::lock_guard lock(*detaching);
    std::thread([detaching, work = std::move(work)] {
        {
            const std::lock_guard isDetached(*detaching);
        }
        work();
    }).detach();
}

} // namespace zentaro
