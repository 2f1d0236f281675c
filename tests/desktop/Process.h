#pragma once

#include "tests/desktop/Wait.h"

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace zentaro::trial {

/// A program under test. Whatever is still running of it when this goes is killed.
class Process {
public:
    Process() = default;
    /// `command` is what env(1) understands: variables as NAME=value, then the program and its arguments.
    explicit Process(const std::vector<std::string>& command, const std::string& folder = ".");
    Process(Process&& other) noexcept { Swap(other); }
    Process& operator=(Process&& other) noexcept { return Swap(other); }
    ~Process() { Kill(); }

    pid_t Id() const { return m_id; }
    bool IsRunning();
    /// The exit code, 128 + the signal that ended it, or nothing when it still runs after `limit`.
    std::optional<int> WaitForEnd(std::chrono::milliseconds limit = kPatience);
    void Signal(int signal) const;
    /// With all its children, unless they lead groups of their own.
    void Kill();
    /// Everything that it has printed so far, errors included.
    std::string Output() const;

private:
    Process& Swap(Process& other);

    pid_t m_id = -1;
    int m_output = -1;
    std::optional<int> m_result;
};

/// The words of a text, parted by blanks.
std::vector<std::string> Words(const std::string& text);

std::string ReadWholeFile(const std::string& path);
void WriteWholeFile(const std::string& path, const std::string& bytes);

} // namespace zentaro::trial
