#include "platform/ChildProcess.h"

#include "platform/Files_linux.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <mutex>
#include <poll.h>
#include <set>
#include <spawn.h>
#include <string_view>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

namespace zentaro::platform {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kRound{ 40 };
constexpr milliseconds kGrace{ 20 }; // between the polite and the hard signal

struct Pipe {
    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

/// In a program without standard streams a pipe's end may get one of their numbers; the child needs them free.
FileDescriptor AboveStandardStreams(int number)
{
    FileDescriptor low(number);
    return number > STDERR_FILENO ? std::move(low)
                                  : FileDescriptor(::fcntl(number, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

/// 0, or the system's error code.
int OpenPipe(Pipe& pipe)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return errno;
    pipe.readEnd = AboveStandardStreams(ends[0]);
    pipe.writeEnd = AboveStandardStreams(ends[1]);
    if (pipe.readEnd.Number() < 0 || pipe.writeEnd.Number() < 0)
        return errno;
    // Only our end: the child's stays as every program expects it.
    return ::fcntl(pipe.readEnd.Number(), F_SETFL, O_NONBLOCK) == 0 ? 0 : errno;
}

int NiceValue(std::uint32_t priorityClass)
{
    switch (priorityClass) {
    case kHighPriority:
        return -14;
    case kAboveNormalPriority:
    case 0xFFFF8000:
        return -7;
    case kBelowNormalPriority:
        return 10;
    case kIdlePriority:
        return 19;
    default:
        return 0;
    }
}

struct SpawnRequest {
    const char* image;
    std::vector<std::string> arguments; // with argument 0
    std::string workDir;
    int output; // a descriptor for both output streams, or -1: nowhere
};

class SpawnActions {
public:
    explicit SpawnActions(const SpawnRequest& request)
    {
        ::posix_spawn_file_actions_init(&m_actions);
        Note(::posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0));
        for (const int stream : { STDOUT_FILENO, STDERR_FILENO }) {
            if (request.output < 0)
                Note(::posix_spawn_file_actions_addopen(&m_actions, stream, "/dev/null", O_WRONLY, 0));
            else
                Note(::posix_spawn_file_actions_adddup2(&m_actions, request.output, stream));
        }
        // Other libraries in this process open descriptors without the close-on-exec flag.
        Note(::posix_spawn_file_actions_addclosefrom_np(&m_actions, STDERR_FILENO + 1));
        if (!request.workDir.empty())
            Note(::posix_spawn_file_actions_addchdir_np(&m_actions, request.workDir.c_str()));
    }
    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;
    ~SpawnActions() { ::posix_spawn_file_actions_destroy(&m_actions); }

    int Failure() const { return m_failure; }
    const posix_spawn_file_actions_t* Get() const { return &m_actions; }

private:
    void Note(int failure)
    {
        if (failure != 0)
            m_failure = failure;
    }

    posix_spawn_file_actions_t m_actions;
    int m_failure = 0;
};

/// A group of its own, no blocked signal, and the default answer to each: nothing of what this process has set.
class SpawnAttributes {
public:
    SpawnAttributes()
    {
        ::posix_spawnattr_init(&m_attributes);
        sigset_t signals;
        ::sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&m_attributes, &signals);
        ::sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&m_attributes, &signals);
        ::posix_spawnattr_setpgroup(&m_attributes, 0);
        ::posix_spawnattr_setflags(
            &m_attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    SpawnAttributes(const SpawnAttributes&) = delete;
    SpawnAttributes& operator=(const SpawnAttributes&) = delete;
    ~SpawnAttributes() { ::posix_spawnattr_destroy(&m_attributes); }

    const posix_spawnattr_t* Get() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes;
};

/// 0, or the system's error code.
int Spawn(const SpawnRequest& request, pid_t& pid)
{
    std::vector<char*> arguments;
    for (const auto& argument : request.arguments)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    const SpawnActions actions(request);
    if (actions.Failure() != 0)
        return actions.Failure();
    const SpawnAttributes attributes;
    return ::posix_spawn(&pid, request.image, actions.Get(), attributes.Get(), arguments.data(), environ);
}

std::vector<std::string> WithProgram(const std::string& program, const std::vector<std::string>& arguments)
{
    std::vector<std::string> all{ program };
    all.insert(all.end(), arguments.begin(), arguments.end());
    return all;
}

/// What is to be executed; empty, which is no file, for a bare name that is not found. The system's own search would
/// report a folder of the search path that this user may not enter instead of the missing tool.
std::string Image(const std::string& program)
{
    if (program.find('/') == std::string::npos)
        return FindTool(program, {}).value_or("");
    // The child changes its directory first: a relative path means a place seen from here.
    std::error_code failure;
    const auto path = std::filesystem::absolute(program, failure);
    return failure ? program : path.string();
}

/// The status that it has ended with.
int Reap(pid_t pid)
{
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) { }
    return status;
}

/// Reaps it whenever it ends.
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

/// The leader of a process group. It is reaped only at the end, so that its number, which is the group's number too,
/// cannot be given to anybody else while the group may still be signalled.
class GroupLeader {
public:
    explicit GroupLeader(pid_t pid)
        : m_pid(pid)
        , m_endSignal(OpenEndSignal(pid))
    {
        Groups().Add(pid);
    }
    GroupLeader(const GroupLeader&) = delete;
    GroupLeader& operator=(const GroupLeader&) = delete;
    ~GroupLeader()
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

    pid_t Pid() const { return m_pid; }
    bool HasEnded() const { return m_ended; }
    /// At most `wait` for the leader's end, or for something to read from `output` (-1: from nowhere).
    bool Wait(milliseconds wait, int output)
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
    void Terminate()
    {
        ::kill(-m_pid, SIGTERM);
        const auto end = std::chrono::steady_clock::now() + kGrace;
        while (!m_ended && std::chrono::steady_clock::now() < end)
            Wait(std::chrono::duration_cast<milliseconds>(end - std::chrono::steady_clock::now()), -1);
        // Always: the leader may have gone and left children that ignore the first signal.
        ::kill(-m_pid, SIGKILL);
    }

private:
    bool IsGone() const
    {
        siginfo_t info{};
        const int result = ::waitid(P_PID, static_cast<id_t>(m_pid), &info, WEXITED | WNOHANG | WNOWAIT);
        return result == 0 ? info.si_pid != 0 : errno == ECHILD;
    }

    pid_t m_pid;
    FileDescriptor m_endSignal;
    bool m_ended = false;
};

class LinuxChild final : public ChildProcess {
public:
    LinuxChild(pid_t pid, FileDescriptor output)
        : m_leader(pid)
        , m_output(std::move(output))
    {
    }

    bool HasEnded(milliseconds wait) override
    {
        return m_leader.Wait(wait, m_closed || m_terminated ? -1 : m_output.Number());
    }
    void Terminate() override
    {
        m_terminated = true;
        m_leader.Terminate();
    }
    void Pause() override
    {
        if (!m_leader.HasEnded() || m_closed)
            return;
        pollfd event{ m_output.Number(), POLLIN, 0 };
        ::poll(&event, 1, static_cast<int>(kRound.count()));
    }
    std::optional<std::size_t> Read(std::span<char> buffer) override
    {
        if (m_closed)
            return std::nullopt;
        const auto count = ::read(m_output.Number(), buffer.data(), buffer.size());
        if (count > 0)
            return static_cast<std::size_t>(count);
        if (count < 0 && (errno == EAGAIN || errno == EINTR))
            return 0;
        m_closed = true;
        return std::nullopt;
    }
    void ApplyPriorityClass(std::uint32_t priorityClass) override
    {
        ::setpriority(PRIO_PGRP, static_cast<id_t>(m_leader.Pid()), NiceValue(priorityClass));
    }

private:
    GroupLeader m_leader;
    FileDescriptor m_output;
    bool m_closed = false;
    bool m_terminated = false;
};

class LinuxShellProcess final : public StartedProcess {
public:
    explicit LinuxShellProcess(pid_t pid)
        : m_leader(pid)
    {
    }
    bool HasEnded(milliseconds wait) override { return m_leader.Wait(wait, -1); }
    void Terminate() override { m_leader.Terminate(); }

private:
    GroupLeader m_leader;
};

class DetachedProcess final : public StartedProcess {
public:
    explicit DetachedProcess(pid_t pid)
        : m_status(ReapLater(pid))
    {
    }
    bool HasEnded(milliseconds wait) override
    {
        return m_status.valid() && m_status.wait_for(wait) == std::future_status::ready;
    }
    bool HasFailed() const override
    {
        return m_status.valid() && m_status.wait_for(milliseconds(0)) == std::future_status::ready
            && m_status.get() != 0;
    }
    void Terminate() override { }

private:
    std::shared_future<int> m_status;
};

bool IsExecutableFile(const std::string& path)
{
    struct stat status { };
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && ::access(path.c_str(), X_OK) == 0;
}

} // namespace

Result<std::unique_ptr<ChildProcess>> ChildProcess::Start(const ChildCommand& command)
{
    Pipe pipe;
    if (const int failure = OpenPipe(pipe))
        return StartError(StartStep::Pipe, failure);
    const auto image = command.useShellName ? "/bin/sh" : Image(command.program);
    const SpawnRequest request{ image.c_str(), WithProgram(command.program, command.arguments), command.workDir,
        pipe.writeEnd.Number() };
    pid_t pid = 0;
    if (const int failure = Spawn(request, pid))
        return StartError(StartStep::Process, failure);
    auto child = std::make_unique<LinuxChild>(pid, std::move(pipe.readEnd));
    if (NiceValue(command.creationFlags) != 0)
        child->ApplyPriorityClass(command.creationFlags);
    return std::unique_ptr<ChildProcess>(std::move(child));
}

std::unique_ptr<StartedProcess> ShellStart(const ShellCommand& command)
{
    const auto image = Image(command.file);
    pid_t pid = 0;
    if (Spawn({ image.c_str(), WithProgram(command.file, command.arguments), command.folder, -1 }, pid) != 0)
        return nullptr;
    if (command.detached)
        return std::make_unique<DetachedProcess>(pid);
    return std::make_unique<LinuxShellProcess>(pid);
}

void GiveWay()
{
    constexpr int kThisThread = 0;
    constexpr int kOneThread = 1;            // the disk's word for a thread
    constexpr int kLastInLine = 2 << 13 | 7; // the usual class, behind all others in it
    // Not idle: on a busy machine such a process could not even end.
    ::setpriority(PRIO_PROCESS, kThisThread, NiceValue(kBelowNormalPriority));
    ::syscall(SYS_ioprio_set, kOneThread, kThisThread, kLastInLine);
}

void EndStartedProcesses()
{
    Groups().Kill();
}

std::optional<std::string> FindTool(const std::string& name, const std::string& firstFolder)
{
    const char* searchPath = std::getenv("PATH");
    std::string_view rest = searchPath ? searchPath : "/usr/local/bin:/usr/bin:/bin";
    std::string folder = firstFolder;
    while (true) {
        // An empty part of the search path means the current directory, which is no place to take programs from.
        if (!folder.empty() && IsExecutableFile(folder + '/' + name))
            return folder + (folder.back() == '/' ? "" : "/") + name;
        if (rest.empty())
            return std::nullopt;
        const auto end = std::min(rest.find(':'), rest.size());
        folder = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

std::string InstallAdvice(const std::string& name)
{
    return "Install the package \"" + name + "\", for example with: sudo apt install " + name;
}

} // namespace zentaro::platform
