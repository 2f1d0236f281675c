#pragma once

#include "base/Result.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace zentaro::platform {

enum class FileState {
    Missing,   ///< nothing lies at the path
    Readable,  ///< a regular file, and its text has been read
    Unreadable ///< something else lies there, or this user may not read it, or it cannot be read just now: an error of
               ///< the disk, another program that holds it
};
struct FileText {
    FileState state = FileState::Missing;
    std::string text; ///< the first bytes, up to the limit; empty unless the state is Readable
};

/// The first `limit` bytes of a regular file, or why there are none.
FileText ReadFileText(const std::string& path, std::size_t limit);
/// The same for those to whom every failure is one; nothing unless the state is Readable.
std::optional<std::string> ReadTextFile(const std::string& path, std::size_t limit);

/// True when something lies at the path.
bool PathExists(const std::string& path);

/// True when a regular file lies at the path and this user may write it.
bool MayWriteFile(const std::string& path);

/// Writes a complete new file beside `path` and lets it take that name in one step: a reader sees the old text or the
/// new one, never a part, whatever happens meanwhile. A link is followed: what it names is replaced. Fails without a
/// trace when the folder does not take it.
Result<void> ReplaceTextFile(const std::string& path, const std::string& text);

/// The character between the folders of a path: "\" on Windows, "/" elsewhere.
char PathSeparator();

/// True for a path that names a place of this system without a current folder.
bool IsAbsolutePath(const std::string& path);

/// The executable's folder, without a trailing separator; where the system tells, with links resolved.
std::string ExecutableFolder();

/// The folder that holds `Config.cfg`, without a trailing separator; created when missing. It is the executable's
/// folder, unless a file "zentaro.package" lies beside the executable: then it is a folder of the user.
std::string SettingsFolder();

/// The folder of the user for what can be found out again, without a trailing separator; not made here. Empty when the
/// system names none.
std::string CacheFolder();

/// The user's Desktop folder, "C:\" on Windows when it cannot be found out, the home folder elsewhere.
std::string DesktopFolder();

/// The user's Pictures folder, or the home folder.
std::string PicturesFolder();

/// Makes the folder, with those that it lies in, where it is missing; false when it is not there afterwards.
bool MakeFolder(const std::string& folder);

/// Removes the folder and all that is in it; a failure is ignored. An empty name and a root are left alone.
void RemoveFolder(const std::string& folder);

/// The command line without the program's own name: on Windows as it was typed, elsewhere the given arguments (the
/// name not among them) joined by one blank. There an argument that stands alone, or with "*Add" behind it, and names
/// an existing file by a relative path is made absolute, so that a running player of another folder understands it.
std::string CommandLineText(const std::vector<std::string>& arguments);

} // namespace zentaro::platform
