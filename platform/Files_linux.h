#pragma once

#include "base/Result.h"

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace zentaro::platform {

/// Closes its descriptor at the end; -1 is none.
class FileDescriptor {
public:
    explicit FileDescriptor(int number = -1)
        : m_number(number)
    {
    }
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {
    }
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~FileDescriptor() { Close(); }

    int Number() const { return m_number; }
    explicit operator bool() const { return m_number >= 0; }
    void Close()
    {
        if (m_number >= 0)
            close(std::exchange(m_number, -1));
    }

private:
    int m_number;
};

/// The system's last error, with what was tried. Call it before anything else can change `errno`.
inline Error SystemError(const std::string& what)
{
    const int number = errno;
    return { number, what + ": " + std::strerror(number) };
}

/// A folder is ours alone when we own it and nobody else has any right in it.
bool IsPrivateFolder(std::uint32_t owner, std::uint32_t mode, std::uint32_t ownUser);

/// The user's own folder for sockets and locks, opened: "zentaro" in the session's runtime folder, otherwise
/// "zentaro-<user number>" in the temporary folder. Made when it is missing, refused when it is not ours alone.
Result<FileDescriptor> OpenRuntimeFolder();

/// Takes the file lock; false when another holder kept it all the time.
bool LockWithin(int descriptor, std::chrono::milliseconds timeout);

/// Locks what was just made, a file or a folder, so that nobody takes it for a leftover. False when somebody did so
/// before, and has removed it or will.
bool LockNew(int descriptor);

/// How the names of new files begin that have not yet taken the place of old ones.
inline constexpr std::string_view kReplacementPrefix = ".zentaro-";

/// The system's folder for temporary files, without a trailing separator.
std::string TemporaryFolder();

} // namespace zentaro::platform
