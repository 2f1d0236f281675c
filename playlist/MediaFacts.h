#pragma once

#include <cstdint>
#include <string>

namespace zentaro {

/// What a row tells of its file, and what lists are sorted by; 0 or less where unknown.
struct MediaFacts {
    double duration = 0;       // seconds
    int width = 0;             // pixels
    int height = 0;            // pixels
    std::int64_t fileSize = 0; // bytes
    std::int64_t modified = 0; // seconds since 1970
    std::string artist = {};
    std::string album = {};
    std::string song = {}; // its title, by the file itself
    int number = 0;        // on the album
    int year = 0;
    bool operator==(const MediaFacts&) const = default;
};

} // namespace zentaro
