#include "inspect/StreamWindow.h"

#include <algorithm>

namespace zentaro {

StreamWindow::StreamWindow(std::istream& stream)
    : m_stream(stream)
{
    m_stream.seekg(0, std::ios::end);
    m_length = std::max<std::int64_t>(0, m_stream.tellg());
    m_stream.clear();
}

std::span<const std::uint8_t> StreamWindow::From(std::int64_t position)
{
    if (position < 0 || position >= m_length)
        return {};
    if (position < m_start || position >= m_start + static_cast<std::int64_t>(m_filled))
        MoveTo(position);
    const auto skipped = static_cast<std::size_t>(position - m_start);
    return std::span(m_bytes).first(m_filled).subspan(std::min(skipped, m_filled));
}

bool StreamWindow::Read(std::int64_t position, std::span<std::uint8_t> target)
{
    while (!target.empty()) {
        const auto bytes = From(position);
        if (bytes.empty())
            return false;
        const auto count = std::min(bytes.size(), target.size());
        std::copy_n(bytes.begin(), count, target.begin());
        target = target.subspan(count);
        position += static_cast<std::int64_t>(count);
    }
    return true;
}

void StreamWindow::MoveTo(std::int64_t position)
{
    m_start = position;
    m_filled = 0;
    m_stream.clear();
    if (m_stream.seekg(position))
        m_stream.read(reinterpret_cast<char*>(m_bytes.data()), static_cast<std::streamsize>(m_bytes.size()));
    m_filled = static_cast<std::size_t>(std::max<std::streamsize>(0, m_stream.gcount()));
}

} // namespace zentaro
