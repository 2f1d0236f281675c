#pragma once

#include <chrono>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace zentaro {

/// What threads have for the window's, which is the test's here.
class PostedWork {
public:
    /// Of any thread.
    void Add(std::function<void()> work)
    {
        const std::lock_guard lock(m_mutex);
        m_posted.push_back(std::move(work));
    }
    /// Does what comes until it is done, for some seconds at most.
    bool RunUntil(const std::function<bool()>& done)
    {
        using namespace std::chrono_literals;
        const auto end = std::chrono::steady_clock::now() + 10s;
        do {
            std::this_thread::sleep_for(5ms);
            std::unique_lock lock(m_mutex);
            const auto posted = std::exchange(m_posted, {});
            lock.unlock();
            for (const auto& work : posted)
                work();
        } while (!done() && std::chrono::steady_clock::now() < end);
        return done();
    }

private:
    std::mutex m_mutex;
    std::vector<std::function<void()>> m_posted;
};

} // namespace zentaro
