#pragma once

#include "base/Picture.h"

#include <cstdint>
#include <string>

namespace zentaro {

inline constexpr std::int32_t kAudioStream = 1;
inline constexpr std::int32_t kVideoStream = 2;

/// What is known about one stream of a media file.
struct StreamInfo {
    std::int32_t Type = 0;    // kAudioStream or kVideoStream
    std::int32_t Index = 0;   // the stream number that the tool printed, its first digit only
    std::int32_t BitRate = 0; // kbit/s, 0 when unknown
    std::string Compression;  // display name of the codec
    float FPS = 0;            // frames per second (video)
    std::int32_t Width = 0;   // px, as coded: before any rotation (video)
    std::int32_t Height = 0;  // px (video)
    zentaro::Picture Picture; // thumbnail or a default picture; not part of the serialised form
    float SourceAR = 0;       // Width / Height (video)
    float DisplayAR = 0;      // 1 when nothing better is known (video)
    bool Interlaced = false;  // known for MPEG files only (video)
    std::int32_t Channels = 0;
    std::int32_t SampleRate = 0; // Hz (audio)
    std::int32_t Delay = 0;      // ms; AVI files only (audio)

    bool operator==(const StreamInfo&) const = default;
};

} // namespace zentaro
