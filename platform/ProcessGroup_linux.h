#pragma once

#include "platform/Files_linux.h"

#include <chrono>
#include <future>
#include <sys/types.h>

namespace zentaro::platform {

/// Reaps the child whenever it ends; the status that it has ended with. Not valid when nobody can wait for it.
std::shared_future<int> ReapLater(pid_t pid);

/// The leader of a process group. It is reaped only at the end, so that its number, which is the group's number too,
/// cannot be given to anybody else while the group may still be signalled.
class GroupLeader {
public:
    explicit GroupLeader(pid_t pid);
    GroupLeader(const GroupLeader&) = delete;
    GroupLeader& operator=(const GroupLeader&) = delete;
    /// Ends the group.
    ~GroupLeader();

    pid_t Pid() const { return m_pid; }
    bool HasEnded() const { return m_ended; }
    /// At most `wait` for the leader's end, or for something to read from `output` (-1: from nowhere).
    bool Wait(std::chrono::milliseconds wait, int output);
    /// Ends it politely, and after a moment whatever is left of the group in any case.
    void Terminate();

private:
    bool IsGone() const;

    pid_t m_pid;
    FileDescriptor m_endSignal;
    bool m_ended = false;
};

/// Ends all groups whose leaders live.
void KillLiveGroups();

} // namespace zentaro::platform
