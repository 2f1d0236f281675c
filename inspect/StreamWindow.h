#pragma once

#include <array>
#include <cstdint>
#include <istream>
#include <span>

namespace zentaro {

/// Reads anywhere in a stream through one small window, so that steps back and short jumps cost no system call.
class StreamWindow {
public:
    /// The stream must outlive the window, and must not be moved meanwhile.
    explicit StreamWindow(std::istream& stream);

    /// Bytes of the whole stream; 0 when it cannot tell.
    std::int64_t Length() const { return m_length; }
    /// The bytes that exist from `position` on: at least one unless it lies behind the end, at most what the window
    /// holds. Valid until the next call.
    std::span<const std::uint8_t> From(std::int64_t position);
    /// Fills `target` completely from `position`, or says that the stream has not that much.
    bool Read(std::int64_t position, std::span<std::uint8_t> target);

private:
    void MoveTo(std::int64_t position);

    std::istream& m_stream;
    std::int64_t m_length = 0;
    std::int64_t m_start = 0;
    std::size_t m_filled = 0;
    std::array<std::uint8_t, 32768> m_bytes;
};

} // namespace zentaro
