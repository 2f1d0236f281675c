#include "platform/ChildProcess.h"

#include "platform/ProcessGroup_linux.h"
#include "platform/Spawn_linux.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <poll.h>
#include <string_view>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace zentaro::platform {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kRound{ 40 };

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
    KillLiveGroups();
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
