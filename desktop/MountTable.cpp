#include "desktop/MountTable.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <sstream>

namespace zentaro::desktop {

namespace {

/// Blanks and the like are written as a backslash and three octal digits.
std::string Unescaped(std::string_view text)
{
    const auto isOctal = [](char digit) { return digit >= '0' && digit <= '7'; };
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isEscape =
            text[i] == '\\' && i + 3 < text.size() && std::ranges::all_of(text.substr(i + 1, 3), isOctal);
        if (!isEscape) {
            plain += text[i];
            continue;
        }
        plain += static_cast<char>((text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 + (text[i + 3] - '0'));
        i += 3;
    }
    return plain;
}

bool Holds(std::string_view folder, std::string_view path)
{
    return folder == "/" || (path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/'));
}

} // namespace

std::string FileSystemOf(std::string_view mounts, std::string_view path)
{
    std::istringstream lines{ std::string(mounts) };
    std::string type;
    std::size_t longest = 0;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string word;
        for (int i = 0; i < 5; ++i)
            words >> word;
        const auto folder = Unescaped(word);
        while (words >> word && word != "-")
            ;
        // Of two at the same place the later one is seen.
        if (words >> word && folder.size() >= longest && Holds(folder, path)) {
            longest = folder.size();
            type = word;
        }
    }
    return type;
}

bool IsRemoteFileSystem(std::string_view type)
{
    constexpr std::array remote{ "9p", "afs", "ceph", "cifs", "coda", "davfs", "glusterfs", "ncpfs", "nfs", "nfs4",
        "smb3", "smbfs" };
    // Those of user programs, save for drives that one of them reads ("fuseblk").
    return type == "fuse" || type.starts_with("fuse.") || std::ranges::find(remote, type) != remote.end();
}

} // namespace zentaro::desktop
