#pragma once

#include "inspect/CodecNames.h"
#include "inspect/Inspection.h"
#include "inspect/StreamInfo.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zentaro {

inline constexpr std::string_view kUnsupportedFile = "Unsupported file format or the file is corrupted.";
inline constexpr std::string_view kIncompleteFile = "File may be incomplete or corrupted.";

struct ParsedStream {
    StreamInfo info;
    std::size_t line = 0; // which one of the text's stream lines it is, from 0
};

/// What the text of ffmpeg says. After a failure the values read before it are still there.
struct ParsedReport {
    std::string error;   // empty: none
    float duration = 0;  // s
    float startTime = 0; // s
    std::vector<ParsedStream> streams;
    std::vector<InspectionMessage> messages;
};

/// Reads a report in the tool's classic form, literally: words count wherever they stand. A value that cannot be
/// converted, or that the line does not have, leaves its field as it was; the rest of the line is still read.
/// `fileName` is for messages only.
ParsedReport ParseReport(
    std::string_view text, const std::string& fileName, const CodecNames& audioNames, const CodecNames& videoNames);

/// Removes video streams without size or above 250 frames per second. The one that moves into a removed place is not
/// looked at.
void PruneVideoStreams(std::vector<ParsedStream>& streams);

/// Seconds of "HH:MM:SS.t": fixed columns, one digit of the fraction; "N/A" is 0.
float ParseTime(std::string_view text);

} // namespace zentaro
