#pragma once

#include <string>

namespace zentaro::trial {

/// Media files made by ffmpeg, kept for the whole run of the test program.
struct Clips {
    /// The path of a file of this name; its extension says what kind it is. A moving picture, as ffmpeg draws it, where
    /// the kind has one, and a tone. Throws when it cannot be made.
    static std::string Make(
        const std::string& name, double seconds = 20, const std::string& picture = "testsrc2=size=320x240:rate=25");
    static bool IsSoundOnly(const std::string& name);
};

} // namespace zentaro::trial
