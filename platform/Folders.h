#pragma once

#include <string>
#include <vector>

namespace zentaro::platform {

/// The character between the folders of a path: "\" on Windows, "/" elsewhere.
char PathSeparator();

/// True for a path that names a place of this system without a current folder.
bool IsAbsolutePath(const std::string& path);

/// The executable's folder, without a trailing separator; where the system tells, with links resolved.
std::string ExecutableFolder();

/// The folder that holds `Config.cfg`, without a trailing separator; created when missing. It is the executable's
/// folder, unless a file "zentaro.package" lies beside the executable: then it is a folder of the user.
std::string SettingsFolder();

/// The user's Desktop folder, "C:\" on Windows when it cannot be found out, the home folder elsewhere.
std::string DesktopFolder();

/// The user's Pictures folder, or the home folder.
std::string PicturesFolder();

/// A new private folder of this run under the system's temporary folder, owner-only, without a trailing separator;
/// empty when none can be made. The caller removes it.
std::string MakeWorkingFolder();

/// Makes the folder, with those that it lies in, where it is missing; false when it is not there afterwards.
bool MakeFolder(const std::string& folder);

/// Removes the folder and all that is in it; a failure is ignored. An empty name and a root are left alone.
void RemoveFolder(const std::string& folder);

/// The command line without the program's own name: on Windows as it was typed, elsewhere the given arguments (the
/// name not among them) joined by one blank. There an argument that stands alone, or with "*Add" behind it, and names
/// an existing file by a relative path is made absolute, so that a running player of another folder understands it.
std::string CommandLineText(const std::vector<std::string>& arguments);

} // namespace zentaro::platform
