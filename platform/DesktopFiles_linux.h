#pragma once

#include <QStandardPaths>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace zentaro::platform {

/// bytes; the files of a desktop are far shorter
inline constexpr std::size_t kDesktopFileLimit = 1 << 20;

/// The user's own folder first.
std::vector<std::string> FoldersOf(QStandardPaths::StandardLocation location);

/// The names of the files of defaults in a folder, the first one counting most.
std::vector<std::string> DefaultsNames();

/// Nothing when the file cannot be read or is longer than the limit.
std::optional<std::string> ReadDesktopFile(const std::string& path);

/// Makes the file hold the text, or go when there is none. True when it had to change, nothing when it would not.
std::optional<bool> BringFileInLine(const std::string& path, const std::optional<std::string>& text);

/// The text of an installed desktop entry. A dash in its name may stand for a folder.
std::optional<std::string> ReadEntry(const std::vector<std::string>& dataFolders, const std::string& name);

/// The value of a key in the entry's main group.
std::string EntryValue(const std::string& text, const std::string& key);

/// Runs a tool of the desktop, for at most 3 s when `wait` is set. Does nothing where the tool is missing.
void RunTool(const std::string& name, const std::vector<std::string>& arguments, bool wait);

/// Makes the icon theme in `themeFolder` hold the program's icons of these types of files, as "zentaro-<name>" in all
/// sizes, and of no others. `source` holds "png/<size>/<name>.png" and "svg/<name>.svg". Those names for which there is
/// an icon now; a type without one is left out.
std::vector<std::string> BringTypeIcons(
    const std::vector<std::string>& names, const std::string& source, const std::string& themeFolder);

/// The picture file that an installed program's desktop entry means by `icon`, or `icon` itself when none is found.
std::string FindProgramIcon(const std::string& icon, const std::vector<std::string>& dataFolders);

} // namespace zentaro::platform
