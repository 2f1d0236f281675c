#pragma once

#include <string>
#include <vector>

namespace zentaro {

/// A program, its arguments as a list (nothing is parsed again on Linux), and the text that the log shows.
struct ToolCommand {
    std::string program;
    std::vector<std::string> arguments;
    std::string text;
};

} // namespace zentaro
