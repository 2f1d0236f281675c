#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zentaro::platform {

/// Files that are selected in a file manager, and what its user wants of them.
struct FileSelection {
    bool plays = false; ///< the first one, and the others are added; else all are added
    std::vector<std::string> paths;
};

/// What a file manager adds to the command line of a program that it has started to give it a selection.
inline constexpr const char* kSelectionComes = "-Embedding";

/// Takes the selection that this process was started for; nothing when none comes within a minute. On the thread that
/// calls it first. Only Windows: elsewhere a file manager names all files on the command line, and none ever comes.
std::optional<FileSelection> TakeSelection();

} // namespace zentaro::platform
