#pragma once

#include <cstdint>
#include <string_view>

namespace zentaro {

/// What mpgtx knows about an MPEG file's film; 0 where it says nothing.
struct MpegFacts {
    std::int32_t bitRate = 0; // kbit/s
    float frameRate = 0;      // frames per second
    float aspect = 0;         // of the display
    bool interlaced = false;
};

/// Reads the tool's text literally. Of several lines that tell the same the last one counts.
MpegFacts ParseMpegReport(std::string_view text);

/// The one of the aspects that an MPEG film can name which this is; 0 when it is none of them.
float KnownAspect(float aspect);

} // namespace zentaro
