#pragma once

#include "base/Result.h"
#include "inspect/ToolRunner.h"
#include "platform/ChildProcess.h"

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

namespace zentaro {

/// No priority class waits to be applied.
inline constexpr std::uint32_t kNothingPending = 0xFFFFFFFF;

/// What a tool run needs from its surroundings, and the hooks through which they act on it: a pumped event handler, or
/// another thread. One context serves one run at a time; runs side by side have a context each.
struct ToolContext {
    /// Abort request for a captured run: the child is terminated, what it has printed is kept. Cleared when a run
    /// starts.
    std::atomic<std::int16_t> CancelExecute = 0;
    /// A priority class (platform/ChildProcess.h) for the running child; becomes kNothingPending once applied, and when
    /// a run starts.
    std::atomic<std::uint32_t> PendingPriorityClass = kNothingPending;
    /// Abort request for a waited shell run: the process is terminated. Cleared when a run starts.
    std::atomic<std::int16_t> CancelShellWait = 0;

    /// Called at least every 40 ms of a captured run and every 10 ms of a shell run; it may run event handlers and set
    /// the hooks. May be empty.
    std::function<void()> pumpMessages;
    /// Gets every chunk of a captured run together with its conversion mode, 1 to 3. May be empty.
    std::function<void(std::int32_t mode, std::string_view chunk)> convertOutput;
    /// Where a tool without a path is looked for first; with or without trailing separator.
    std::string programFolder;
    char separator = static_cast<char>(std::filesystem::path::preferred_separator);
};

/// The context of the runs on the UI thread, and its hooks by their process-wide names.
inline ToolContext DefaultToolContext;
inline std::atomic<std::int16_t>& CancelExecute = DefaultToolContext.CancelExecute;
inline std::atomic<std::uint32_t>& PendingPriorityClass = DefaultToolContext.PendingPriorityClass;
inline std::atomic<std::int16_t>& CancelShellWait = DefaultToolContext.CancelShellWait;

/// Creation flags for a captured run's priority: 0 high, 1 above normal, 2 normal, 3 below normal, 4 idle; any other is
/// normal.
std::uint32_t CreationFlags(std::int32_t priority);

/// Runs the tool hidden and writes `command.text`, a line break and then every byte that it prints on either output
/// into `logFile` (created or overwritten). Returns when the child has ended and its stream is drained, or cancelled;
/// a cancelled run is a success.
/// `convertMode`: 0, or 1 to 3 for ToolContext::convertOutput. `useShellName`: the system's command shell is the
/// program, the tool's name only its argument 0. `workDir`: empty for the current directory.
/// Errors: 2001 no pipe, 2002 wrong pipe state, 2003 no process (each text ends with the system's error code; the log
/// is not touched); kToolHangs for a tool that was ended by its limit; the system's own number for a log that cannot be
/// opened or written.
Result<void> ExecuteAndCapture(const ToolCommand& command, const std::string& logFile, std::int32_t convertMode,
    bool useShellName, std::int32_t priority, const std::string& workDir, ToolContext& context = DefaultToolContext);

/// Copies what `child` prints into `log` until it has ended and its stream is drained, or the run is cancelled. False
/// when the limit has ended it.
bool Capture(platform::ChildProcess& child, std::ostream& log, std::int32_t convertMode, ToolContext& context,
    const RunLimit& limit = {});

/// Starts `command` through the system's shell, in the folder of its program. A program without "/", "\" and ":" is
/// first completed: with the program folder when it lies there, else from the search path, else with the program folder
/// all the same; `command.program` is updated. `showCmd`: 0 hidden (the numbers of Windows). `wait`: returns after the
/// process has ended or CancelShellWait was set; `pumpMessages`: pumps meanwhile. True when the process was started and
/// not ended by its limit in all.
bool ShellExecuteAndWait(ToolCommand& command, std::int32_t showCmd, bool wait, bool pumpMessages,
    ToolContext& context = DefaultToolContext);

/// The tool's path for ExecuteAndCapture: a name without "/", "\" and ":" is looked for in the program folder, then in
/// the search path; it stays as it is when it is in neither, or has a path already.
std::string FindTool(const std::string& name, const std::string& programFolder);

/// The text before the last separator; a path without any is returned unchanged.
std::string ParentFolder(const std::string& path, char separator);

} // namespace zentaro
