#include "inspect/ModPipes.h"

#include "base/Paths.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <fstream>
#include <system_error>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t kReadBuffer = 4096;
constexpr auto kChildWait = 40ms;
constexpr auto kShellWait = 10ms;
/// A process that waits for a device which does not answer lives on until it does, whatever it was sent.
constexpr auto kEndWait = 500ms;
/// More than a pipe holds: after a cancel only what had been printed is taken, however long somebody goes on printing.
constexpr std::size_t kMostLeftInPipe = std::size_t{ 1 } << 20;

using platform::ChildProcess;

using Clock = std::chrono::steady_clock;

void Pump(const ToolContext& context)
{
    if (context.pumpMessages)
        context.pumpMessages();
}

/// The log's end of one run: bytes go through in chunks and are not held.
class ChunkCopy {
public:
    ChunkCopy(ChildProcess& child, std::ostream& log, std::int32_t convertMode, const ToolContext& context)
        : m_child(child)
        , m_log(log)
        , m_convertMode(convertMode)
        , m_context(context)
    {
    }

    /// The size of the chunk; 0 when there is no output now, nothing when there will be no more.
    std::optional<std::size_t> Next()
    {
        const auto count = m_child.Read(m_buffer);
        if (!count || *count == 0)
            return count;
        m_log.write(m_buffer.data(), static_cast<std::streamsize>(*count));
        if (m_convertMode >= 1 && m_convertMode <= 3 && m_context.convertOutput)
            m_context.convertOutput(m_convertMode, { m_buffer.data(), *count });
        return count;
    }

private:
    ChildProcess& m_child;
    std::ostream& m_log;
    std::int32_t m_convertMode;
    const ToolContext& m_context;
    std::array<char, kReadBuffer> m_buffer{};
};

void TerminateAndDrain(ChildProcess& child, ChunkCopy& copy, const ToolContext& context)
{
    child.Terminate();
    const auto end = Clock::now() + kEndWait;
    while (!child.HasEnded(kChildWait) && Clock::now() < end)
        Pump(context);
    std::size_t total = 0;
    while (const auto count = copy.Next()) {
        total += *count;
        if (*count == 0 || total > kMostLeftInPipe)
            return;
    }
}

/// Measures one run by its limit.
class RunClock {
public:
    explicit RunClock(const RunLimit& limit)
        : m_limit(limit)
    {
    }
    void NoteOutput() { m_lastOutput = Clock::now(); }
    bool IsOver() const
    {
        const auto now = Clock::now();
        return now - m_lastOutput >= m_limit.silence || now - m_start >= m_limit.total;
    }

private:
    const RunLimit m_limit;
    const Clock::time_point m_start = Clock::now();
    Clock::time_point m_lastOutput = m_start;
};

void ApplyPendingPriority(ChildProcess& child, ToolContext& context)
{
    const auto pending = context.PendingPriorityClass.exchange(kNothingPending);
    if (pending != kNothingPending)
        child.ApplyPriorityClass(pending);
}

/// errno's meaning; 0, from a run-time that does not say why, becomes a plain input/output error.
Error FileError(int code)
{
    const int number = code == 0 ? EIO : code;
    return { number, std::generic_category().message(number) };
}

/// Ready for the raw stream: the text stands there with the system's own line break.
Result<void> WriteFirstLine(const std::string& logFile, const std::string& text)
{
    errno = 0;
    std::ofstream log(logFile, std::ios::trunc);
    log << text << '\n';
    log.close();
    return log ? Result<void>() : FileError(errno);
}

bool HasPath(const std::string& file)
{
    return file.find_first_of("/\\:") != std::string::npos;
}

std::string Completed(const std::string& file, const ToolContext& context)
{
    if (HasPath(file))
        return file;
    if (const auto found = platform::FindTool(file, context.programFolder))
        return *found;
    return WithTrailingSeparator(context.programFolder, context.separator) + file;
}

} // namespace

std::uint32_t CreationFlags(std::int32_t priority)
{
    switch (priority) {
    case 0:
        return platform::kHighPriority;
    case 1:
        // The class above normal with all higher bits set as well: that is what has always been passed here.
        return 0xFFFF8000;
    case 3:
        return platform::kBelowNormalPriority;
    case 4:
        return platform::kIdlePriority;
    default:
        return platform::kNormalPriority;
    }
}

bool Capture(
    ChildProcess& child, std::ostream& log, std::int32_t convertMode, ToolContext& context, const RunLimit& limit)
{
    ChunkCopy copy(child, log, convertMode, context);
    RunClock clock(limit);
    const auto mustEnd = [&] { return context.CancelExecute != 0 || clock.IsOver(); };
    const auto end = [&] {
        const bool isCancelled = context.CancelExecute != 0;
        TerminateAndDrain(child, copy, context);
        return isCancelled;
    };
    do {
        Pump(context);
        child.Pause();
        if (copy.Next().value_or(0) > 0)
            clock.NoteOutput();
        if (mustEnd())
            return end();
        ApplyPendingPriority(child, context);
    } while (!child.HasEnded(kChildWait));

    // Whoever the child left behind may hold the stream for long: this part can be ended too.
    while (const auto count = copy.Next()) {
        if (*count == 0)
            child.Pause();
        else
            clock.NoteOutput();
        Pump(context);
        if (mustEnd())
            return end();
    }
    return true;
}

Result<void> ExecuteAndCapture(const ToolCommand& command, const std::string& logFile, std::int32_t convertMode,
    bool useShellName, std::int32_t priority, const std::string& workDir, ToolContext& context)
{
    context.PendingPriorityClass = kNothingPending;
    context.CancelExecute = 0;
    auto child =
        ChildProcess::Start({ command.program, command.arguments, workDir, useShellName, CreationFlags(priority) });
    if (!child)
        return child.error();
    // Only now: a run that does not start leaves an earlier log as it is.
    if (auto begun = WriteFirstLine(logFile, command.text); !begun)
        return begun;
    std::ofstream log(logFile, std::ios::binary | std::ios::app);
    if (!Capture(**child, log, convertMode, context, command.limit))
        return Error{ kToolHangs, "The tool does not end." };
    if (!log) {
        // What kept it from being written is forgotten by now; a further try says it again.
        log.clear();
        errno = 0;
        log.put('\n').flush();
        return FileError(errno);
    }
    errno = 0;
    log.close();
    return log ? Result<void>() : FileError(errno);
}

bool ShellExecuteAndWait(ToolCommand& command, std::int32_t showCmd, bool wait, bool pumpMessages, ToolContext& context)
{
    command.program = Completed(command.program, context);
    context.CancelShellWait = 0;
    const auto process = platform::ShellStart(
        { command.program, command.arguments, ParentFolder(command.program, context.separator), showCmd, !wait });
    if (!process || !wait)
        return process != nullptr;
    const RunClock clock({ .total = command.limit.total });
    while (!process->HasEnded(kShellWait)) {
        if (pumpMessages)
            Pump(context);
        if (context.CancelShellWait) {
            process->Terminate();
            break;
        }
        if (clock.IsOver()) {
            process->Terminate();
            return false;
        }
    }
    return true;
}

std::string FindTool(const std::string& name, const std::string& programFolder)
{
    return HasPath(name) ? name : platform::FindTool(name, programFolder).value_or(name);
}

std::string ParentFolder(const std::string& path, char separator)
{
    return path.substr(0, path.rfind(separator));
}

} // namespace zentaro
