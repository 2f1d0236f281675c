#include "platform/ChildProcess.h"
#include "platform/System_windows.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <mutex>
#include <set>
#include <shellapi.h>
#include <utility>

namespace zentaro::platform {

namespace {

/// Wine takes what Windows refuses, and its pipe would then not wait for the tool.
BOOL WINAPI SetAsOnWindows(HANDLE pipe, LPDWORD mode, LPDWORD maximumCollection, LPDWORD collectTimeout)
{
    if (::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "wine_get_version") == nullptr)
        return ::SetNamedPipeHandleState(pipe, mode, maximumCollection, collectTimeout);
    ::SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
}

} // namespace

decltype(&::SetNamedPipeHandleState) SetPipeState = &SetAsOnWindows;

namespace {

constexpr DWORD kPollSleep = 40; // ms

class Handle {
public:
    explicit Handle(HANDLE handle = nullptr)
        : m_handle(handle)
    {
    }
    Handle(Handle&& other) noexcept
        : m_handle(std::exchange(other.m_handle, nullptr))
    {
    }
    Handle& operator=(Handle&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    ~Handle() { Close(); }
    void Close()
    {
        if (m_handle)
            ::CloseHandle(std::exchange(m_handle, nullptr));
    }
    HANDLE Get() const { return m_handle; }

private:
    HANDLE m_handle;
};

struct Pipe {
    Handle readEnd;
    Handle writeEnd;
};

/// One argument as the usual argument parser of Windows programs reads it back: a backslash is itself, except before a
/// quote, where it must be doubled.
std::string Quoted(const std::string& argument)
{
    if (!argument.empty() && argument.find_first_of(" \t\n\v\"") == std::string::npos)
        return argument;
    std::string text = "\"";
    std::size_t backslashes = 0;
    for (const char c : argument) {
        if (c == '"')
            text.append(backslashes + 1, '\\');
        backslashes = c == '\\' ? backslashes + 1 : 0;
        text += c;
    }
    return text.append(backslashes, '\\') + '"';
}

std::string Joined(const std::vector<std::string>& arguments)
{
    std::string text;
    for (const auto& argument : arguments)
        text += (text.empty() ? "" : " ") + Quoted(argument);
    return text;
}

std::string CommandLine(const ChildCommand& command)
{
    // A program's own name is read by simpler rules than its arguments; no file name holds a quote.
    const auto text = '"' + command.program + '"';
    return command.arguments.empty() ? text : text + ' ' + Joined(command.arguments);
}

std::string CurrentFolder()
{
    std::string folder(::GetCurrentDirectoryA(0, nullptr), '\0');
    folder.resize(::GetCurrentDirectoryA(static_cast<DWORD>(folder.size()), folder.data()));
    return folder;
}

Error LastError(StartStep step)
{
    return StartError(step, ::GetLastError());
}

bool HasProcessEnded(HANDLE process, std::chrono::milliseconds wait)
{
    return ::WaitForSingleObject(process, static_cast<DWORD>(wait.count())) != WAIT_TIMEOUT;
}

/// The processes that somebody waits for.
struct LiveProcesses {
    std::mutex mutex;
    std::set<HANDLE> handles;
};

/// Never destroyed: threads that nobody waits for use it up to the end.
LiveProcesses& AllLive()
{
    static auto* const processes = new LiveProcesses;
    return *processes;
}

/// A place among the live processes; the process's handle is closed after it.
class LivePlace {
public:
    explicit LivePlace(HANDLE process)
        : m_process(process)
    {
        const std::lock_guard lock(AllLive().mutex);
        AllLive().handles.insert(process);
    }
    LivePlace(const LivePlace&) = delete;
    LivePlace& operator=(const LivePlace&) = delete;
    ~LivePlace()
    {
        const std::lock_guard lock(AllLive().mutex);
        AllLive().handles.erase(m_process);
    }

private:
    HANDLE m_process;
};

class WindowsChild final : public ChildProcess {
public:
    WindowsChild(Handle process, Handle output)
        : m_process(std::move(process))
        , m_place(m_process.Get())
        , m_output(std::move(output))
    {
    }
    ~WindowsChild() override
    {
        if (!HasProcessEnded(m_process.Get(), {}))
            Terminate();
    }

    bool HasEnded(std::chrono::milliseconds wait) override { return HasProcessEnded(m_process.Get(), wait); }
    void Terminate() override { ::TerminateProcess(m_process.Get(), 0); }
    void Pause() override { ::Sleep(kPollSleep); }
    std::optional<std::size_t> Read(std::span<char> buffer) override
    {
        // The pipe blocks: without this look ahead a silent tool would stop the message pump, and with it any cancel.
        DWORD waiting = 0;
        if (!::PeekNamedPipe(m_output.Get(), nullptr, 0, nullptr, &waiting, nullptr))
            return std::nullopt;
        if (waiting == 0)
            return 0;
        DWORD count = 0;
        if (!::ReadFile(m_output.Get(), buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr))
            return std::nullopt;
        return count;
    }
    void ApplyPriorityClass(std::uint32_t priorityClass) override
    {
        ::SetPriorityClass(m_process.Get(), priorityClass);
    }

private:
    Handle m_process;
    LivePlace m_place;
    Handle m_output;
};

class WindowsShellProcess final : public StartedProcess {
public:
    WindowsShellProcess(Handle process, bool detached)
        : m_process(std::move(process))
        , m_detached(detached)
    {
        if (!detached && m_process.Get() != nullptr)
            m_place.emplace(m_process.Get());
    }
    ~WindowsShellProcess() override
    {
        if (!m_detached && !HasProcessEnded(m_process.Get(), {}))
            WindowsShellProcess::Terminate();
    }
    bool HasEnded(std::chrono::milliseconds wait) override
    {
        // A document that a running program took over has no process of its own to wait for.
        return !m_process.Get() || HasProcessEnded(m_process.Get(), wait);
    }
    bool HasFailed() const override
    {
        // A player ends with the number that the system holds for a process that runs.
        DWORD code = 0;
        return m_process.Get() && HasProcessEnded(m_process.Get(), {}) && ::GetExitCodeProcess(m_process.Get(), &code)
            && code != 0 && code != STILL_ACTIVE;
    }
    void Terminate() override { ::TerminateProcess(m_process.Get(), 0); }

private:
    Handle m_process;
    std::optional<LivePlace> m_place;
    bool m_detached;
};

/// A start-up record in the memory of an extended one: creation flags with all high bits set promise the system an
/// attribute list behind the record, and it must find none there.
STARTUPINFOEXA HiddenStartUp(HANDLE output)
{
    STARTUPINFOEXA record{};
    record.StartupInfo.cb = sizeof(STARTUPINFOA);
    record.StartupInfo.dwFlags = STARTF_USESHOWWINDOW | STARTF_USESTDHANDLES;
    record.StartupInfo.wShowWindow = SW_HIDE;
    record.StartupInfo.hStdInput = nullptr;
    record.StartupInfo.hStdOutput = output;
    record.StartupInfo.hStdError = output;
    return record;
}

} // namespace

namespace {

thread_local bool givesWay = false;

/// Processes have no such thing from the thread that starts them.
void LowerLikeThisThread(HANDLE process)
{
    if (givesWay && process != nullptr)
        ::SetPriorityClass(process, kBelowNormalPriority);
}

} // namespace

void GiveWay()
{
    givesWay = true;
    ::SetThreadPriority(::GetCurrentThread(), THREAD_PRIORITY_BELOW_NORMAL);
}

Result<std::unique_ptr<ChildProcess>> ChildProcess::Start(const ChildCommand& command)
{
    // Every child inherits all inheritable handles. Another one that is started meanwhile would keep this one's stream
    // open, so the write end may exist in this process only while the lock is held.
    static std::mutex inheritableHandles;
    const std::lock_guard lock(inheritableHandles);

    const auto workDir = command.workDir.empty() ? CurrentFolder() : command.workDir;
    SECURITY_ATTRIBUTES inherited{ sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE };
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    if (!::CreatePipe(&readEnd, &writeEnd, &inherited, 0))
        return LastError(StartStep::Pipe);
    Pipe pipe{ Handle(readEnd), Handle(writeEnd) };

    DWORD mode = PIPE_NOWAIT;
    DWORD maximumCollection = 0;
    DWORD collectTimeout = 0;
    // Success is the failure, on purpose: the reader is made for a pipe that refuses this mode.
    if (SetPipeState(readEnd, &mode, &maximumCollection, &collectTimeout))
        return LastError(StartStep::PipeState);

    auto startUp = HiddenStartUp(writeEnd);
    auto commandLine = CommandLine(command);
    PROCESS_INFORMATION process{};
    if (!::CreateProcessA(command.useShellName ? "cmd.exe" : nullptr, commandLine.data(), &inherited, &inherited, TRUE,
            command.creationFlags | CREATE_NO_WINDOW, nullptr, workDir.c_str(), &startUp.StartupInfo, &process))
        return LastError(StartStep::Process);
    Handle(process.hThread).Close();
    LowerLikeThisThread(process.hProcess);
    pipe.writeEnd.Close();
    return std::unique_ptr<ChildProcess>(
        std::make_unique<WindowsChild>(Handle(process.hProcess), std::move(pipe.readEnd)));
}

std::unique_ptr<StartedProcess> ShellStart(const ShellCommand& command)
{
    const auto parameters = Joined(command.arguments);
    SHELLEXECUTEINFOA info{};
    info.cbSize = sizeof(info);
    info.fMask = SEE_MASK_NOCLOSEPROCESS;
    info.lpFile = command.file.c_str();
    info.lpParameters = parameters.c_str();
    info.lpDirectory = command.folder.c_str();
    info.nShow = command.showCommand;
    if (!::ShellExecuteExA(&info))
        return nullptr;
    LowerLikeThisThread(info.hProcess);
    return std::make_unique<WindowsShellProcess>(Handle(info.hProcess), command.detached);
}

void EndStartedProcesses()
{
    const std::lock_guard lock(AllLive().mutex);
    for (auto* const process : AllLive().handles)
        ::TerminateProcess(process, 0);
}

std::optional<std::string> FindTool(const std::string& name, const std::string& firstFolder)
{
    // Without a list of folders the system also looks into the current one, where a download may lie.
    const char* const searched = std::getenv("PATH");
    std::array<char, MAX_PATH> system;
    const auto systemLength = ::GetSystemDirectoryA(system.data(), MAX_PATH);
    const auto searchPath = (searched != nullptr ? std::string(searched) + ";" : std::string())
        + std::string(system.data(), systemLength < MAX_PATH ? systemLength : 0);
    for (const auto& folders : { firstFolder, searchPath }) {
        if (folders.empty())
            continue;
        std::array<char, 32768> path; // the longest path of the system
        const auto length = ::SearchPathA(folders.c_str(), name.c_str(), ".exe", path.size(), path.data(), nullptr);
        if (length > 0 && length < path.size())
            return std::string(path.data(), length);
    }
    return std::nullopt;
}

std::string InstallAdvice(const std::string& name)
{
    return "Put \"" + name + ".exe\" into the folder that Zentaro lies in, or into a folder of the search path (PATH).";
}

} // namespace zentaro::platform
