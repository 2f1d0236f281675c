#pragma once

#include "base/Result.h"
#include "inspect/ToolCommand.h"

#include <cstdint>
#include <string>

namespace zentaro {

/// The number of the error for a tool that was ended by its RunLimit.
inline constexpr std::int32_t kToolHangs = 2004;

/// How an inspection starts its tools. The player runs real programs, a test answers from a script.
class ToolRunner {
public:
    virtual ~ToolRunner() = default;
    /// Writes `command.text`, a line break and all that the tool prints to `logFile`. The tool's exit code plays no
    /// part; fails only when it cannot be started, the file cannot be written, or with kToolHangs.
    virtual Result<void> Capture(const ToolCommand& command, const std::string& logFile) = 0;
    /// Runs the tool hidden and waits for its end; `command.text` is the argument string alone. False when the tool
    /// cannot be started or hangs. Its limit for silence plays no part.
    virtual bool RunAndWait(const ToolCommand& command) = 0;
};

} // namespace zentaro
