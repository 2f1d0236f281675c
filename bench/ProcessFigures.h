#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <sys/types.h>
#include <unistd.h>

namespace zentaro {

/// A number from a file of lines "Name: number ..."; 0 where it is missing.
inline long NumberIn(const std::filesystem::path& path, const std::string& name)
{
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        if (line.starts_with(name + ":"))
            return std::strtol(line.c_str() + name.size() + 1, nullptr, 10);
    return 0;
}

/// PSS in KiB; 0 for a process that has ended.
inline long MemoryOf(pid_t id)
{
    return NumberIn("/proc/" + std::to_string(id) + "/smaps_rollup", "Pss");
}

/// Processor time in s of the process and of its children that have ended; 0 once it has ended itself.
inline double ProcessorSeconds(pid_t id)
{
    std::ifstream file("/proc/" + std::to_string(id) + "/stat");
    const std::string text(std::istreambuf_iterator<char>(file), {});
    // The name in brackets can hold blanks.
    std::istringstream fields(text.substr(std::min(text.rfind(')') + 1, text.size())));
    std::string skipped;
    for (int field = 3; field < 14; ++field)
        fields >> skipped;
    double sum = 0;
    double ticks = 0;
    for (int field = 14; field < 18 && fields >> ticks; ++field)
        sum += ticks / static_cast<double>(sysconf(_SC_CLK_TCK));
    return sum;
}

} // namespace zentaro
