#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace zentaro {

/// How long a run may take before its tool counts as hanging and is ended.
struct RunLimit {
    static constexpr std::chrono::milliseconds kNone = std::chrono::hours(24 * 365);
    std::chrono::milliseconds silence = kNone; // since its start or its last output
    std::chrono::milliseconds total = kNone;
};

/// A program, its arguments as a list (nothing is parsed again on Linux), and the text that the log shows.
struct ToolCommand {
    std::string program;
    std::vector<std::string> arguments;
    std::string text;
    RunLimit limit = {};
};

} // namespace zentaro
