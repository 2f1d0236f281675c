#include "platform/Folders.h"

#include <filesystem>
#include <system_error>

namespace zentaro::platform {

void RemoveFolder(const std::string& folder)
{
    // As UTF-8, so that the name does not pass through a code page on Windows.
    const std::filesystem::path path(std::u8string(folder.begin(), folder.end()));
    // No name, or nothing behind the root: whoever asks for that has lost the folder's name on the way.
    if (!path.has_relative_path())
        return;
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

} // namespace zentaro::platform
