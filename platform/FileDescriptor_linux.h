#pragma once

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

} // namespace zentaro::platform
