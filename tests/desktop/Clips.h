#pragma once

#include <string>

namespace zentaro::trial {

/// Media files made by ffmpeg, kept for the whole run of the test program.
class Clips {
public:
    /// The path of a file of this name; its extension says what kind it is. A moving picture where the kind has one,
    /// and a tone. Throws when it cannot be made.
    static std::string Make(const std::string& name, double seconds = 20);
    /// A moving picture without sound.
    static std::string MakeSilent(const std::string& name, double seconds = 20);
    /// A picture that ffmpeg draws like this, and a tone.
    static std::string MakeOf(const std::string& picture, const std::string& name, double seconds);
    static bool IsSoundOnly(const std::string& name);
};

} // namespace zentaro::trial
