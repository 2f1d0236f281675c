#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zentaro {

/// The kinds of files that hold lists: ".m3u" and ".m3u8", ".pls", ".xspf".
enum class ListFormat { M3u, Pls, Xspf };

/// By the extension, in any letter case; nothing for other files.
std::optional<ListFormat> ListFormatOf(std::string_view path, char separator);

/// One entry of a file of a list.
struct ListedEntry {
    std::string path;
    std::string title; ///< empty where the file names none
    double length = 0; ///< seconds; 0 or below while unknown
    bool operator==(const ListedEntry&) const = default;
};

/// What a file of a list says.
struct ListedFiles {
    std::vector<ListedEntry> entries;
    int unreadable = 0; ///< entries that name no file of this system, such as addresses of other machines
    bool operator==(const ListedFiles&) const = default;
};

/// Reads the text of such a file, whatever it holds. `folder`, with a trailing separator, is where it lies: relative
/// names count from there. At most kMostListed entries; those behind them are unreadable.
ListedFiles ParseListFile(std::string_view text, ListFormat format, const std::string& folder, char separator);
inline constexpr int kMostListed = 100'000;

/// The text of such a file in UTF-8. A path is written from `folder` on where that is shorter, and as an address where
/// the format could not give it back otherwise.
std::string FormatListFile(
    const std::vector<ListedEntry>& entries, ListFormat format, const std::string& folder, char separator);

/// What a name of a list can stand for, the likeliest first: lists come from systems with other separators and
/// from times with other letters.
std::vector<std::string> ListedPathCandidates(const std::string& path, char separator);

} // namespace zentaro
