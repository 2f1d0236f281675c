#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zentaro {

/// How a tool writes its stream lines.
enum class StreamDialect { Classic, Current };

enum class StreamKind { Audio, Video, Other };

/// A line such as "  Stream #0:1[0x2](eng): Audio: aac (LC), 44100 Hz, stereo", taken apart.
struct StreamLine {
    std::size_t indent = 0; // blanks in front
    StreamDialect dialect = StreamDialect::Current;
    std::string_view number; // digits
    std::string_view tags;   // "[0x2](eng)", empty when it could be mistaken for something else
    StreamKind kind = StreamKind::Other;
    std::string_view facts; // all behind "Audio: " or "Video: "
};

/// Nothing when the line is no stream line of the first input.
std::optional<StreamLine> TakeApart(std::string_view line);

/// A stream line's facts in the classic form, and what that form has no room for.
struct ClassicFacts {
    std::string text;
    bool attachedPicture = false; // marked as such by the tool
    bool nominalRateOnly = false; // the rate is the container's clock, not one of the film
    float displayAspect = 0;      // 0: none given
    bool interlaced = false;      // as marked by the tool
    std::int32_t width = 0;       // px, of a picture; 0: none given
    std::int32_t height = 0;      // px
};

ClassicFacts ToClassicAudio(std::string_view facts, StreamDialect dialect);
ClassicFacts ToClassicVideo(std::string_view facts, StreamDialect dialect);

/// The number of channels of a layout's name ("5.1(side)", "4 channels (FL+FR+LFE+BC)"); 0 when it is not known.
int ChannelsOfLayout(std::string_view name);

} // namespace zentaro
