#pragma once

#include <latch>
#include <memory>
#include <thread>
#include <utility>

namespace zentaro {

/// Starts a thread that nobody waits for. Throws std::system_error when the system has none to give; `work` is then not
/// called.
template <class Work> void StartDetached(Work work)
{
    // Where mingw-w64 makes the threads, one that is being detached while it ends gives back twice what belongs to it,
    // and two later threads get the same work, while another's is never done. So none ends before it is detached.
    auto isDetached = std::make_shared<std::latch>(1);
    std::thread([isDetached, work = std::move(work)] {
        isDetached->wait();
        work();
    }).detach();
    isDetached->count_down();
}

} // namespace zentaro
