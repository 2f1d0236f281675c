#pragma once

#include <array>
#include <string>
#include <string_view>

namespace zentaro {

/// The 24 media extensions in their fixed order: lower case, without the dot. The order is that of the association
/// flags in `Config.cfg` and of the open dialog's filters.
inline constexpr std::array<std::string_view, 24> kMediaExtensions = { "wav", "flv", "mka", "mkv", "mp3", "mpg", "mpe",
    "mpeg", "aac", "mp4", "m4v", "m4a", "ogm", "ogg", "mov", "hdmov", "qt", "3gp", "3gpp", "3g2", "avi", "wma", "wmv",
    "asf" };

/// The text after the last separator; the whole text when there is none. `separator` is the system's, see
/// platform/Folders.h.
std::string FileNamePart(std::string_view path, char separator);

/// The path with exactly what it needs to be a folder that a file name can follow.
std::string WithTrailingSeparator(std::string path, char separator);

/// The shortest way to write the path: without "." and ".." and doubled separators. What names something else then, as
/// behind a link to a folder, and what names nothing, stays as it is.
std::string TidyPath(const std::string& path);

/// The path from the root on; itself where that cannot be told.
std::string WholePath(const std::string& path);

/// The text after the last dot of the file name, lower-cased (ASCII letters only); empty when there is none.
std::string LowerExtension(std::string_view path, char separator);

/// True when the path's extension is one of the 24, in any letter case.
bool IsSupportedFile(std::string_view path, char separator);

} // namespace zentaro
