#pragma once

#include "tests/desktop/Wait.h"

#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace zentaro::desktop {

/// A program under test. Whatever is still running of it when this goes is killed.
class Process {
public:
    struct Start {
        std::string program = {};
        std::vector<std::string> arguments = {};
        std::string folder = {};                             ///< working folder; empty: the test's
        std::string errorFile = {};                          ///< takes its output and errors; empty: nobody sees them
        std::map<std::string, std::string> environment = {}; ///< beside the test's own
        int passedDescriptor = -1;                           ///< becomes its descriptor 3
    };

    Process() = default;
    explicit Process(const Start& start);
    Process(Process&& other) noexcept;
    Process& operator=(Process&& other) noexcept;
    ~Process();

    pid_t Id() const { return m_id; }
    bool IsRunning();
    /// The exit code, 128 + the signal that ended it, or nothing when it still runs after `limit`.
    std::optional<int> WaitForEnd(std::chrono::milliseconds limit = kPatience);
    void Signal(int signal) const;
    void Kill();
    /// Everything it has written so far.
    std::string ErrorText() const;

    int ThreadCount() const;
    /// Its share of memory in KiB, pages that it shares with others counted in parts.
    long PssKiB() const;
    int OpenDescriptors() const;
    std::vector<pid_t> Children() const;

private:
    pid_t m_id = -1;
    std::optional<int> m_result;
    std::string m_errorFile;
};

/// Every process that has this folder as its home, whoever its parent is by now.
std::vector<pid_t> ProcessesAtHome(const std::string& home);

std::string ReadWholeFile(const std::string& path);
void WriteWholeFile(const std::string& path, const std::string& bytes);

} // namespace zentaro::desktop
