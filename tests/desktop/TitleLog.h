#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace zentaro::desktop {

class Desktop;

/// Writes down every title that any new window of the display takes on, in order.
class TitleLog {
public:
    explicit TitleLog(const Desktop& desktop);
    ~TitleLog();

    std::vector<std::string> Titles() const;
    bool Contains(const std::string& part) const;

private:
    void Run(const std::string& display);

    mutable std::mutex m_mutex;
    std::vector<std::string> m_titles;
    std::atomic<bool> m_isReady = false;
    std::atomic<bool> m_stop = false;
    std::thread m_thread;
};

} // namespace zentaro::desktop
