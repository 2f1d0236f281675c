#pragma once

#include <string>
#include <vector>

namespace zentaro::platform {

/// Makes the icon theme in `themeFolder` hold the program's icons of these types of files, as "zentaro-<name>" in all
/// sizes, and of no others. `source` holds "png/<size>/<name>.png" and "svg/<name>.svg". Those names for which there is
/// an icon now; a type without one is left out.
std::vector<std::string> BringTypeIcons(
    const std::vector<std::string>& names, const std::string& source, const std::string& themeFolder);

/// The picture file that an installed program's desktop entry means by `icon`, or `icon` itself when none is found.
std::string FindProgramIcon(const std::string& icon, const std::vector<std::string>& dataFolders);

} // namespace zentaro::platform
