#pragma once

#include "playlist/DroppedFiles.h"

#include <string>
#include <vector>

namespace zentaro {

/// What names stand for that were dropped, chosen or handed over.
struct FoundFiles {
    std::vector<std::string> media;
    std::vector<std::string> skipped;   ///< names of files that are no media
    std::vector<std::string> subtitles; ///< for what plays
    int listed = 0;                     ///< entries of the lists among the names
    int unreadable = 0;                 ///< of these, the ones behind which there is no file that plays
};

/// True for the files of subtitles that can be dropped.
bool IsSubtitleFile(std::string_view path, char separator);

/// As DroppedMediaFiles; a file of a list stands for its entries, where they are found. Reads files.
FoundFiles FindFiles(const std::vector<std::string>& paths, char separator, const GoOn& goOn, bool takesAll = false);

/// "3 of 12 entries could not be found"; empty when none is missing.
std::string MissingText(const FoundFiles& found);

} // namespace zentaro
