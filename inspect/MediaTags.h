#pragma once

#include <string>
#include <string_view>

namespace zentaro {

/// Who has made a song, and for which album; empty where the file does not say.
struct MediaTags {
    std::string artist;
    std::string album;
    bool operator==(const MediaTags&) const = default;
};

/// Takes a line of a report of ffmpeg's behind the file's name: the first of each kind counts.
void ReadTagLine(std::string_view line, MediaTags& tags);

} // namespace zentaro
