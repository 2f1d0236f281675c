#pragma once

#include <string>

namespace zentaro::trial {

/// A video DVD, made for one test. Its first menu has two buttons, waits for ever, and loops nothing: the left one
/// plays a title of 3 s that comes back to the menu, the right one a title of 2 s after which the disc ends.
struct VideoDisc {
    /// Makes it below a folder. Throws when it cannot be made.
    explicit VideoDisc(const std::string& folder);

    std::string folder; ///< holds VIDEO_TS
    std::string image;
};

} // namespace zentaro::trial
