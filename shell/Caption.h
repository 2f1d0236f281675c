#pragma once

#include <string>

namespace zentaro {

inline constexpr const char* kProgramName = "Zentaro";
inline constexpr const char* kApplicationTitle = "Quorvane Zentaro";

/// What the caption is made of: the mode of the settings and the selected playlist entry.
struct CaptionState {
    int titleBarMode = 1; // 0: title, 1: full path, else neither
    std::string title;
    std::string fullPath;
};

/// The whole caption; the label shortens it to its width.
std::string CaptionText(const CaptionState& state);

} // namespace zentaro
