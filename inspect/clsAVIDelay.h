#pragma once

#include "inspect/clsRIFFParser.h"

#include <cstddef>
#include <cstdint>
#include <istream>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zentaro {

/// A stream header, the "strh" chunk (AVI RIFF file reference, AVISTREAMHEADER): 56 bytes.
struct AviStreamHeader {
    static constexpr std::size_t kBytes = 56;
    std::string type; // four characters, "auds" for audio
    std::string handler;
    std::int32_t flags = 0;
    std::int16_t priority = 0;
    std::int16_t language = 0;
    std::int32_t initialFrames = 0;
    std::int32_t scale = 0;
    std::int32_t rate = 0;
    std::int32_t start = 0;
    std::int32_t length = 0;
    std::int32_t suggestedBufferSize = 0;
    std::int32_t quality = 0;
    std::int32_t sampleSize = 0;
    std::int16_t left = 0;
    std::int16_t top = 0;
    std::int16_t right = 0;
    std::int16_t bottom = 0;
};

/// An audio format, the "strf" chunk of an audio stream (PCMWAVEFORMAT): 16 bytes.
struct AviAudioFormat {
    static constexpr std::size_t kBytes = 16;
    std::int16_t formatTag = 0;
    std::int16_t channels = 0;
    std::int32_t samplesPerSecond = 0;
    std::int32_t averageBytesPerSecond = 0;
    std::int16_t blockAlign = 0;
    std::int16_t bitsPerSample = 0;
};

/// Decode one record; the span holds at least its kBytes.
AviStreamHeader DecodeStreamHeader(std::span<const std::uint8_t> bytes);
AviAudioFormat DecodeAudioFormat(std::span<const std::uint8_t> bytes);

/// Format tags of the streams whose frames are looked for.
inline constexpr std::int16_t kMpegAudioTag = 80;
inline constexpr std::int16_t kMpegLayer3Tag = 85;
inline constexpr std::int16_t kAc3Tag = 8192;

/// Offset of the first two bytes in `payload` that can begin an audio frame of that format.
std::optional<std::size_t> FindFrameStart(std::int16_t formatTag, std::span<const std::uint8_t> payload);

/// How much later than the AVI file says the sound of each audio stream begins: the data often starts within a frame.
/// Only the file's beginning is read, 2,500,000 bytes and what begins in them.
class clsAVIDelay {
public:
    std::int32_t StreamCount() const { return static_cast<std::int32_t>(m_streams.size()); }
    /// Milliseconds; -1: no frame met, -2: none within 1,500,000 bytes of the stream, -1 too for a number that is no
    /// stream's.
    std::int32_t StreamDelay(std::int32_t index) const;
    bool StreamIsAudio(std::int32_t index) const;
    /// False when the file cannot be read, is no AVI file or is damaged in what has to be read of it; streams met
    /// before the damage stay.
    bool OpenFile(const std::string& fileName);
    /// The same for a stream that can seek.
    bool OpenStream(std::istream& stream);
    /// Of the last file that was read to its end; empty before.
    const std::string& FileName() const { return m_fileName; }

private:
    struct Stream {
        AviStreamHeader header;
        AviAudioFormat format;
        std::int32_t bytesSoFar = 0;
        std::int32_t delay = -1;
    };

    bool Walk(clsRIFFParser& parser);
    bool ReadStreamHeader(clsRIFFParser& parser);
    bool ReadFormat(clsRIFFParser& parser);
    bool ReadAudioData(clsRIFFParser& parser);
    bool SearchPayload(clsRIFFParser& parser, Stream& stream);

    std::vector<Stream> m_streams;
    std::string m_fileName;
};

} // namespace zentaro
