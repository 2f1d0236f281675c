#include "platform/ProcessGroup_linux.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <mutex>
#include <poll.h>
#include <set>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

namespace zentaro::platform {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kGrace{ 20 }; // between the polite and the hard signal

/// The status that it has ended with.
int Reap(pid_t pid)
{
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) { }
    return status;
}

/// The groups that may be signalled: their leaders are not reaped yet.
class LiveGroups {
public:
    void Add(pid_t leader)
    {
        const std::lock_guard lock(m_mutex);
        m_leaders.insert(leader);
    }
    void Remove(pid_t leader)
    {
        const std::lock_guard lock(m_mutex);
        m_leaders.erase(leader);
    }
    void Kill()
    {
        const std::lock_guard lock(m_mutex);
        for (const auto leader : m_leaders)
            ::kill(-leader, SIGKILL);
    }

private:
    std::mutex m_mutex;
    std::set<pid_t> m_leaders;
};

/// Never destroyed: threads that nobody waits for use it up to the end.
LiveGroups& Groups()
{
    static auto* const groups = new LiveGroups;
    return *groups;
}

/// A descriptor that can be read once the process has ended, or -1. (glibc 2.36 declares pidfd_open for C only.)
int OpenEndSignal(pid_t pid)
{
    return static_cast<int>(::syscall(SYS_pidfd_open, pid, 0));
}

} // namespace

std::shared_future<int> ReapLater(pid_t pid)
{
    std::packaged_task<int()> reap([pid] { return Reap(pid); });
    std::shared_future<int> status = reap.get_future();
    try {
        std::thread(std::move(reap)).detach();
    } catch (const std::system_error&) {
        // Too many threads: the child stays a zombie until this process ends, which harms nobody.
        return {};
    }
    return status;
}

GroupLeader::GroupLeader(pid_t pid)
    : m_pid(pid)
    , m_endSignal(OpenEndSignal(pid))
{
    Groups().Add(pid);
}

GroupLeader::~GroupLeader()
{
    if (!HasEnded())
        Terminate();
    Wait(kGrace, -1);
    Groups().Remove(m_pid);
    if (HasEnded())
        Reap(m_pid);
    else
        ReapLater(m_pid);
}

bool GroupLeader::Wait(milliseconds wait, int output)
{
    if (m_ended)
        return true;
    std::array<pollfd, 2> events{ { { m_endSignal.Number(), POLLIN, 0 }, { output, POLLIN, 0 } } };
    const bool blind = m_endSignal.Number() < 0; // an old kernel, or a sandbox
    // A time that has passed must not become the negative number for which poll() waits for ever.
    const auto slice = std::max(blind ? std::min(wait, milliseconds(5)) : wait, milliseconds(0));
    ::poll(events.data(), events.size(), static_cast<int>(slice.count()));
    if (blind || events[0].revents != 0)
        m_ended = IsGone();
    return m_ended;
}

void GroupLeader::Terminate()
{
    ::kill(-m_pid, SIGTERM);
    const auto end = std::chrono::steady_clock::now() + kGrace;
    while (!m_ended && std::chrono::steady_clock::now() < end)
        Wait(std::chrono::duration_cast<milliseconds>(end - std::chrono::steady_clock::now()), -1);
    // Always: the leader may have gone and left children that ignore the first signal.
    ::kill(-m_pid, SIGKILL);
}

bool GroupLeader::IsGone() const
{
    siginfo_t info{};
    const int result = ::waitid(P_PID, static_cast<id_t>(m_pid), &info, WEXITED | WNOHANG | WNOWAIT);
    return result == 0 ? info.si_pid != 0 : errno == ECHILD;
}

void KillLiveGroups()
{
    Groups().Kill();
}

} // namespace zentaro::platform
