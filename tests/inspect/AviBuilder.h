#pragma once

#include <cstdint>
#include <string>

namespace zentaro {

/// Little-endian bytes of a number.
inline std::string Bytes(std::int64_t value, int count)
{
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    return bytes;
}

inline std::string Zeros(std::size_t count)
{
    return std::string(count, '\0');
}

/// A chunk; `size` only when it is to lie.
inline std::string Chunk(const std::string& id, const std::string& payload, std::int64_t size)
{
    return id + Bytes(size, 4) + payload + Zeros(payload.size() % 2);
}
inline std::string Chunk(const std::string& id, const std::string& payload)
{
    return Chunk(id, payload, static_cast<std::int64_t>(payload.size()));
}
inline std::string List(const std::string& type, const std::string& content)
{
    return "LIST" + Bytes(static_cast<std::int64_t>(content.size()) + 4, 4) + type + content;
}

struct AudioStream {
    std::int32_t formatTag = 85;
    std::int32_t averageBytesPerSecond = 16'000;
    std::int32_t scale = 1;
    std::int32_t rate = 1;
    std::int32_t start = 0;
};

/// An AVI file as bytes: stream headers, then whatever a test appends.
class AviBuilder {
public:
    AviBuilder& AddVideoStream()
    {
        const AudioStream stream;
        m_bytes += List("strl", Chunk("strh", Header("vids", stream)) + Chunk("strf", Zeros(40)));
        return *this;
    }
    AviBuilder& AddAudioStream(const AudioStream& stream)
    {
        const auto format = Bytes(stream.formatTag, 2) + Bytes(2, 2) + Bytes(48'000, 4)
            + Bytes(stream.averageBytesPerSecond, 4) + Bytes(1, 2) + Bytes(0, 2);
        m_bytes += List("strl", Chunk("strh", Header("auds", stream)) + Chunk("strf", format));
        return *this;
    }
    AviBuilder& Add(const std::string& bytes)
    {
        m_bytes += bytes;
        return *this;
    }
    std::string File(const std::string& form = "AVI ") const
    {
        return "RIFF" + Bytes(static_cast<std::int64_t>(m_bytes.size()) + 4, 4) + form + m_bytes;
    }

private:
    static std::string Header(const std::string& type, const AudioStream& stream)
    {
        return type + Zeros(16) + Bytes(stream.scale, 4) + Bytes(stream.rate, 4) + Bytes(stream.start, 4) + Zeros(24);
    }

    std::string m_bytes = List("hdrl", Chunk("avih", Zeros(56)));
};

} // namespace zentaro
