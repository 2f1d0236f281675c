#pragma once

#include <string>
#include <string_view>

namespace zentaro {

/// What a song is called, who has made it, and for which album; empty or 0 where the file does not say.
struct MediaTags {
    std::string artist = {};
    std::string album = {};
    std::string title = {};
    int number = 0; ///< on the album
    int year = 0;
    bool operator==(const MediaTags&) const = default;
};

/// Takes a line of a report of ffmpeg's behind the file's name: the first of each kind counts. `namesSong`: what is
/// called by the line is the file or its sound; pictures and chapters have titles, too.
void ReadTagLine(std::string_view line, bool namesSong, MediaTags& tags);

} // namespace zentaro
