#pragma once

#include <cstddef>
#include <optional>
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

} // namespace zentaro
