#pragma once

#include "base/Result.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zentaro::platform {

/// Priority classes and creation flags are numbers of the Windows process functions. Other systems translate the
/// classes into nice values; a class that this user may not have leaves the priority as it is.
inline constexpr std::uint32_t kHighPriority = 128;
inline constexpr std::uint32_t kAboveNormalPriority = 32768;
inline constexpr std::uint32_t kNormalPriority = 32;
inline constexpr std::uint32_t kBelowNormalPriority = 16384;
inline constexpr std::uint32_t kIdlePriority = 64;

/// A program without a window of its own. Its arguments arrive exactly as they stand in the list.
struct ChildCommand {
    std::string program; // a path, or a bare name that the system looks for in its search path
    std::vector<std::string> arguments;
    std::string workDir;       // empty: the current directory
    bool useShellName = false; // the system's command shell is the program, and `program` only its argument 0
    std::uint32_t creationFlags = kNormalPriority;
};

/// What could not be done when a captured child was to be started; the value is the error's number.
enum class StartStep { Pipe = 2001, PipeState = 2002, Process = 2003 };

/// The error for a step that failed with the system's `code`.
inline Error StartError(StartStep step, std::int64_t code)
{
    const auto* text = step == StartStep::Pipe ? "Could not create pipe LastError "
        : step == StartStep::PipeState         ? "Could not set pipe state LastError "
                                               : "Could not create piped process. LastError ";
    return { static_cast<std::int32_t>(step), text + std::to_string(code) };
}

/// A process of ours that can be waited for and ended. One that still runs when the object goes is terminated; nobody
/// waits for one that does not end even then, such as a process that reads from a dead drive.
class StartedProcess {
public:
    virtual ~StartedProcess() = default;
    /// Waits at most `wait` for the process's end. Where output can be waited for too (Linux), output that can be read
    /// ends the wait early.
    virtual bool HasEnded(std::chrono::milliseconds wait) = 0;
    /// It has ended with a code that tells of a failure. Known of what ShellStart has started detached.
    virtual bool HasFailed() const { return false; }
    /// Linux: the process and all that it started and that stayed in its group, within 20 ms whatever they do with
    /// signals. Windows: the process, with exit code 0.
    virtual void Terminate() = 0;
};

/// A hidden child whose standard output and error arrive as one stream of bytes; its standard input is empty, and it
/// inherits nothing else.
class ChildProcess : public StartedProcess {
public:
    /// To be called before each read. Where output cannot be waited for (Windows) it takes 40 ms; elsewhere it takes
    /// time only once the child has ended: at most 40 ms for output of those who still hold the stream.
    virtual void Pause() = 0;
    /// The number of bytes read, without waiting for any; 0 when there are none now, nothing once every writer has
    /// closed the stream.
    virtual std::optional<std::size_t> Read(std::span<char> buffer) = 0;
    /// A class of this header; a refusal is ignored.
    virtual void ApplyPriorityClass(std::uint32_t priorityClass) = 0;

    /// Fails with a StartError().
    static Result<std::unique_ptr<ChildProcess>> Start(const ChildCommand& command);
};

/// What the system's shell is asked to start.
struct ShellCommand {
    std::string file;
    std::vector<std::string> arguments;
    std::string folder;           // working directory; empty: the current directory
    std::int32_t showCommand = 0; // window state by the numbers of Windows: 0 is hidden; without effect elsewhere
    bool detached = false;        // nobody will wait for it: it lives on when the returned object goes
};

/// Starts a program (on Windows also a document's program) with no standard streams; null when that fails.
std::unique_ptr<StartedProcess> ShellStart(const ShellCommand& command);

/// Lets this thread, and every process that it starts from now on, give way to all others, at the processor and at the
/// disk. There is no way back.
void GiveWay();

/// Ends, at once and hard, all processes that were started here and that somebody still waits for. For the end of this
/// process, which does not wait until those who use them are done.
void EndStartedProcesses();

/// The path of the tool of that bare name (on Windows with or without ".exe"): in `firstFolder` when it lies there and
/// may be executed, else in the search path; nothing when it is in neither.
std::optional<std::string> FindTool(const std::string& name, const std::string& firstFolder);

/// A sentence for the user: how the tool of that name gets onto this system.
std::string InstallAdvice(const std::string& name);

} // namespace zentaro::platform
