#include "inspect/clsAVIDelay.h"

#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace zentaro {

namespace {

using ChunkKind = clsRIFFParser::ChunkKind;

constexpr std::int64_t kScanLimit = 2'500'000;   // bytes of the file
constexpr std::int64_t kSearchLimit = 1'500'000; // bytes of one stream's data
constexpr std::int32_t kNotFound = -1;
constexpr std::int32_t kGaveUp = -2;

/// Takes little-endian fields one after the other.
class FieldReader {
public:
    explicit FieldReader(std::span<const std::uint8_t> bytes)
        : m_bytes(bytes)
    {
    }
    std::string Text4()
    {
        const auto field = Take(4);
        return { field.begin(), field.end() };
    }
    std::int16_t Int16()
    {
        const auto field = Take(2);
        return static_cast<std::int16_t>(field[0] | field[1] << 8);
    }
    std::int32_t Int32()
    {
        const auto low = static_cast<std::uint16_t>(Int16());
        const auto high = static_cast<std::uint16_t>(Int16());
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(high) << 16 | low);
    }

private:
    std::span<const std::uint8_t> Take(std::size_t count)
    {
        const auto field = m_bytes.first(count);
        m_bytes = m_bytes.subspan(count);
        return field;
    }

    std::span<const std::uint8_t> m_bytes;
};

/// Nothing for what no 32-bit number can hold, as after a division by zero.
std::optional<std::int32_t> Rounded(double value)
{
    using Limits = std::numeric_limits<std::int32_t>;
    const double nearest = std::nearbyint(value);
    if (!(nearest >= Limits::min() && nearest <= Limits::max()))
        return std::nullopt;
    return RoundHalfEven(value);
}

/// `delay` after the stream's own start time.
std::optional<std::int32_t> WithStartTime(const AviStreamHeader& header, std::int32_t delay)
{
    if (header.scale == 0)
        return std::nullopt;
    // Rate over scale, although it counts units per second: the value has always been worked out this way round.
    return Rounded(static_cast<double>(header.rate) / header.scale * 1000 * header.start + delay);
}

bool HasFrames(std::int16_t formatTag)
{
    return formatTag == kAc3Tag || formatTag == kMpegAudioTag || formatTag == kMpegLayer3Tag;
}

/// The number that an identifier such as "01wb" begins with.
std::optional<std::size_t> StreamNumber(const std::string& chunkId)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (!isDigit(chunkId[0]) || !isDigit(chunkId[1]))
        return std::nullopt;
    return static_cast<std::size_t>((chunkId[0] - '0') * 10 + (chunkId[1] - '0'));
}

/// Offset of the first frame start in the current chunk's payload, which is all there.
std::optional<std::int32_t> FindInPayload(clsRIFFParser& parser, std::int16_t formatTag)
{
    const std::int64_t size = parser.ChunkSize();
    std::vector<std::uint8_t> block; // one byte of the block before stays in front, for a frame that starts there
    for (std::int64_t offset = 0; offset < size;) {
        const auto bytes = parser.Peek(offset);
        if (bytes.empty())
            break;
        const auto count = std::min<std::int64_t>(static_cast<std::int64_t>(bytes.size()), size - offset);
        const auto kept = static_cast<std::int64_t>(block.size());
        block.insert(block.end(), bytes.begin(), bytes.begin() + count);
        if (const auto at = FindFrameStart(formatTag, block))
            return static_cast<std::int32_t>(offset - kept + static_cast<std::int64_t>(*at));
        block.erase(block.begin(), block.end() - 1);
        offset += count;
    }
    return std::nullopt;
}

} // namespace

AviStreamHeader DecodeStreamHeader(std::span<const std::uint8_t> bytes)
{
    FieldReader fields(bytes);
    AviStreamHeader header;
    header.type = fields.Text4();
    header.handler = fields.Text4();
    header.flags = fields.Int32();
    header.priority = fields.Int16();
    header.language = fields.Int16();
    for (auto* field : { &header.initialFrames, &header.scale, &header.rate, &header.start, &header.length,
             &header.suggestedBufferSize, &header.quality, &header.sampleSize })
        *field = fields.Int32();
    for (auto* field : { &header.left, &header.top, &header.right, &header.bottom })
        *field = fields.Int16();
    return header;
}

AviAudioFormat DecodeAudioFormat(std::span<const std::uint8_t> bytes)
{
    FieldReader fields(bytes);
    AviAudioFormat format;
    format.formatTag = fields.Int16();
    format.channels = fields.Int16();
    format.samplesPerSecond = fields.Int32();
    format.averageBytesPerSecond = fields.Int32();
    format.blockAlign = fields.Int16();
    format.bitsPerSample = fields.Int16();
    return format;
}

std::optional<std::size_t> FindFrameStart(std::int16_t formatTag, std::span<const std::uint8_t> payload)
{
    const bool ac3 = formatTag == kAc3Tag;
    const std::uint8_t first = ac3 ? 0x0B : 0xFF;
    // Two set low bits are the whole test of MPEG's second byte, on purpose: a frame with a CRC, 0xFA, stays unseen.
    const auto isSecond = [ac3](std::uint8_t byte) { return ac3 ? byte == 0x77 : (byte & 0x03) == 0x03; };
    for (auto at = payload.begin(); at != payload.end(); ++at) {
        at = std::find(at, payload.end(), first);
        if (payload.end() - at < 2)
            break;
        if (isSecond(at[1]))
            return static_cast<std::size_t>(at - payload.begin());
    }
    return std::nullopt;
}

std::int32_t clsAVIDelay::StreamDelay(std::int32_t index) const
{
    return index >= 0 && index < StreamCount() ? m_streams[static_cast<std::size_t>(index)].delay : kNotFound;
}

bool clsAVIDelay::StreamIsAudio(std::int32_t index) const
{
    return index >= 0 && index < StreamCount() && m_streams[static_cast<std::size_t>(index)].header.type == "auds";
}

bool clsAVIDelay::OpenFile(const std::string& fileName)
{
    clsRIFFParser parser;
    m_streams.clear();
    m_fileName.clear();
    if (!parser.OpenFile(fileName) || !Walk(parser))
        return false;
    m_fileName = fileName;
    return true;
}

bool clsAVIDelay::OpenStream(std::istream& stream)
{
    clsRIFFParser parser;
    m_streams.clear();
    m_fileName.clear();
    return parser.OpenStream(stream) && Walk(parser);
}

/// False as soon as something cannot be read as it has to be.
bool clsAVIDelay::Walk(clsRIFFParser& parser)
{
    if (parser.FileType() != "AVI ")
        return false;
    while (parser.ChunkType() != ChunkKind::Eof && parser.Location() <= kScanLimit) {
        parser.GetChunk();
        const auto& id = parser.ChunkID();
        bool readable = true;
        if (parser.ChunkType() == ChunkKind::Eof)
            break;
        if (parser.ChunkType() == ChunkKind::List) {
            if (id == "idx1")
                parser.SkipChunk();
        } else if (id == "strh")
            readable = ReadStreamHeader(parser);
        else if (id == "strf")
            readable = ReadFormat(parser);
        else if (id.ends_with("wb"))
            readable = ReadAudioData(parser);
        if (!readable)
            return false;
    }
    return true;
}

bool clsAVIDelay::ReadStreamHeader(clsRIFFParser& parser)
{
    auto& stream = m_streams.emplace_back();
    std::array<std::uint8_t, AviStreamHeader::kBytes> bytes;
    if (!parser.Read(bytes))
        return false;
    stream.header = DecodeStreamHeader(bytes);
    if (stream.header.rate == 0)
        stream.header.rate = 1;
    return true;
}

bool clsAVIDelay::ReadFormat(clsRIFFParser& parser)
{
    if (m_streams.empty())
        return false;
    if (m_streams.back().header.type != "auds")
        return true;
    std::array<std::uint8_t, AviAudioFormat::kBytes> bytes;
    if (!parser.Read(bytes))
        return false;
    auto& format = m_streams.back().format;
    format = DecodeAudioFormat(bytes);
    // Writers leave it open for a variable bit rate; it is divided by.
    if (format.averageBytesPerSecond == 0)
        format.averageBytesPerSecond = 1;
    return true;
}

bool clsAVIDelay::ReadAudioData(clsRIFFParser& parser)
{
    const auto number = StreamNumber(parser.ChunkID());
    if (!number || *number >= m_streams.size())
        return false;
    auto& stream = m_streams[*number];
    if (stream.delay != kNotFound)
        return true;
    if (parser.ChunkSize() > 0 && HasFrames(stream.format.formatTag))
        return SearchPayload(parser, stream);
    const auto delay = WithStartTime(stream.header, stream.delay);
    stream.delay = delay.value_or(stream.delay);
    return delay.has_value();
}

bool clsAVIDelay::SearchPayload(clsRIFFParser& parser, Stream& stream)
{
    if (!parser.HasWholePayload())
        return false;
    // What is found in a chunk that reaches behind the limit is given up all the same: it needs no search.
    if (std::int64_t{ stream.bytesSoFar } + parser.ChunkSize() > kSearchLimit) {
        stream.delay = kGaveUp;
        parser.SkipChunk();
        return true;
    }
    if (const auto offset = FindInPayload(parser, stream.format.formatTag)) {
        stream.bytesSoFar += *offset;
        const auto dataTime =
            Rounded(static_cast<double>(stream.bytesSoFar) / stream.format.averageBytesPerSecond * 1000);
        const auto delay = dataTime ? WithStartTime(stream.header, *dataTime) : std::nullopt;
        if (!delay)
            return false;
        stream.delay = *delay;
    }
    stream.bytesSoFar += parser.ChunkSize();
    if (stream.bytesSoFar > kSearchLimit)
        stream.delay = kGaveUp;
    parser.SkipChunk();
    return true;
}

} // namespace zentaro
