#pragma once

#include "inspect/MediaTags.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zentaro {

/// What a stream line tells beyond the classic form.
struct StreamHint {
    std::int32_t number = 0; // the whole stream number
    float displayAspect = 0; // of the line's DAR; 0 when it has none
    bool lying = false;      // the tool turns the picture by a quarter: height becomes width
    bool interlaced = false; // as the line says; many tools do not
};

/// An attached picture, which is no stream for the rules.
struct CoverHint {
    std::int32_t width = 0;  // px
    std::int32_t height = 0; // px
};

/// A report of ffmpeg in the form that the tool printed in 2007, which the rules read.
struct ClassicReport {
    std::string text;
    bool classicTool = false;        // the tool itself is of that time
    std::vector<StreamHint> streams; // one for each audio and video line of the text
    std::optional<CoverHint> cover;  // the first one
    MediaTags tags;
};

/// Turns the captured output of any ffmpeg since 2007 into the classic form. Goes by the structure of the report, so
/// nothing that a file name or a tag says can pass for a line of the tool. `commandText` is the log's first line and
/// `inputName` the file's name as the tool was given it: both may hold line breaks.
ClassicReport ToClassicReport(std::string_view log, std::string_view commandText, std::string_view inputName);

/// The same for mpgtx: the lines about the film alone, interlacing in the words that the rules look for.
std::string ToClassicMpegReport(std::string_view log, std::string_view commandText, std::string_view inputName);

} // namespace zentaro
