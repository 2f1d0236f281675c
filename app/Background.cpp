#include "app/Background.h"

#include "base/DetachedThread.h"

#include <chrono>
#include <system_error>
#include <utility>

namespace zentaro {

namespace {

constexpr auto kLastMoment = std::chrono::milliseconds(100);

} // namespace

void RunInBackground(const Post& post, std::function<std::function<void()>()> work)
{
    try {
        StartDetached([post, work] { post(work()); });
    } catch (const std::system_error&) {
        // The system has no thread to give: better late than never.
        post([work] { work()(); });
    }
}

void Gate::Pass(const std::function<void()>& work)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_isOpen)
            return;
        ++m_inside;
    }
    work();
    const std::lock_guard lock(m_mutex);
    --m_inside;
    m_left.notify_all();
}

void Gate::Close()
{
    std::unique_lock lock(m_mutex);
    m_isOpen = false;
    m_left.wait_for(lock, kLastMoment, [this] { return m_inside == 0; });
}

bool Gate::IsOpen() const
{
    const std::lock_guard lock(m_mutex);
    return m_isOpen;
}

} // namespace zentaro
