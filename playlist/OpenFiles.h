#pragma once

#include "base/Result.h"
#include "playlist/LoadThumb.h"

#include <string>
#include <string_view>
#include <vector>

namespace zentaro {

inline constexpr std::string_view kOpenDialogTitle = "Open Video File";

/// The open dialog's filter: "name|patterns" pairs joined by "|". First all formats together, then each one by itself.
std::string OpenDialogFilter();

/// One file of a dialog's answer. Of the key only its file name part counts, as the title.
struct OpenedFile {
    std::string key;
    std::string path;
    bool operator==(const OpenedFile&) const = default;
};

/// The dialog's answer is one path, or a folder followed by names, separated by NUL. A name that comes twice is an
/// error, and none of the files counts.
Result<std::vector<OpenedFile>> ParseOpenFileResult(std::string_view result, char separator);

/// The answers that stand for the paths of a dialog which knows no such form: one for each folder, in order of its
/// first file.
std::vector<std::string> OpenFileResults(const std::vector<std::string>& paths, char separator);

/// What adding the chosen files asks for; only the first one plays, and only with `playFirst`.
std::vector<AddRequest> AddRequests(const std::vector<OpenedFile>& files, char separator, bool playFirst);

} // namespace zentaro
