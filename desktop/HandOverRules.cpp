#include "desktop/HandOverRules.h"

#include <charconv>

namespace zentaro::desktop {
namespace {

constexpr std::string_view kMagic = "ZNT1";
constexpr std::size_t kHeaderSize = kMagic.size() + 4;

std::size_t LengthInHeader(std::string_view header)
{
    std::size_t length = 0;
    for (std::size_t at = kHeaderSize; at-- > kMagic.size();)
        length = length << 8 | static_cast<unsigned char>(header[at]);
    return length;
}

} // namespace

std::optional<std::uint64_t> ParseHandOverHandle(std::string_view handle)
{
    std::uint64_t number = 0;
    const auto* end = handle.data() + handle.size();
    const auto [rest, error] = std::from_chars(handle.data(), end, number);
    if (error != std::errc() || rest != end || number == 0)
        return std::nullopt;
    return number;
}

bool AcceptsHandOverPeer(std::uint32_t peerUser, std::uint32_t ownUser)
{
    return peerUser == ownUser;
}

std::string_view HandOverText(std::string_view text)
{
    return text.substr(0, text.find('\0'));
}

std::string EncodeHandOverFrame(std::string_view text)
{
    std::string frame;
    frame.reserve(kHeaderSize + text.size());
    frame += kMagic;
    for (int shift = 0; shift < 32; shift += 8)
        frame += static_cast<char>(text.size() >> shift & 0xFF);
    frame += text;
    return frame;
}

bool HandOverFrameReader::Take(std::string_view bytes)
{
    if (m_bad)
        return false;
    const bool hadHeader = m_bytes.size() >= kHeaderSize;
    // Memory follows what has really come, never the announced length, which may be a lie.
    m_bytes += bytes;
    if (!hadHeader) {
        m_bad = !HeaderIsGood();
        if (!m_bad && m_bytes.size() >= kHeaderSize)
            m_length = LengthInHeader(m_bytes);
    }
    m_bad = m_bad || (m_bytes.size() > kHeaderSize && m_bytes.size() - kHeaderSize > m_length)
        || m_length > kHandOverTextLimit;
    if (m_bad)
        m_bytes = {};
    return !m_bad;
}

bool HandOverFrameReader::HeaderIsGood() const
{
    const auto start = std::string_view(m_bytes).substr(0, kMagic.size());
    return start == kMagic.substr(0, start.size());
}

std::optional<std::string> HandOverFrameReader::Finish()
{
    if (m_bad || m_bytes.size() < kHeaderSize || m_bytes.size() - kHeaderSize != m_length)
        return std::nullopt;
    return std::string(HandOverText(std::string_view(m_bytes).substr(kHeaderSize)));
}

} // namespace zentaro::desktop
