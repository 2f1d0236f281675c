#pragma once

#include "tests/desktop/Picture.h"

#include <optional>
#include <string>

namespace zentaro::desktop {

/// Media files made by ffmpeg, kept for the whole run of the test program.
class Clips {
public:
    /// The path of a file of this name; its extension says what kind it is. A moving picture where the kind has one,
    /// and a tone. Throws when it cannot be made.
    static std::string Make(const std::string& name, double seconds = 20);
    /// A moving picture without sound.
    static std::string MakeSilent(const std::string& name, double seconds = 20);
    /// A picture that tells its own time, see ShownTime, and a tone. At most 25 s.
    static std::string MakeClock(const std::string& name, double seconds = 20);
    static bool IsSoundOnly(const std::string& name);
};

/// The time (s, in tenths) that a clip of MakeClock shows within this picture of the video's place; nothing when no
/// whole frame of one is there.
std::optional<double> ShownTime(const Picture& video);

} // namespace zentaro::desktop
