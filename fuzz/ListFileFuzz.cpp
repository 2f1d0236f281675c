#include "playlist/ListFile.h"

#include <cstdint>
#include <cstdlib>

using namespace zentaro;

/// A file of a list; the first byte chooses format and separator. What was read is written in every format, and read
/// back names the same files.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const auto format = static_cast<ListFormat>(data[0] % 3);
    const char separator = data[0] / 3 % 2 == 0 ? '/' : '\\';
    const std::string folder = separator == '/' ? "/media/lists/" : "C:\\media\\lists\\";
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    const auto read = ParseListFile(text, format, folder, separator);
    for (const auto other : { ListFormat::M3u, ListFormat::Pls, ListFormat::Xspf }) {
        const auto again =
            ParseListFile(FormatListFile(read.entries, other, folder, separator), other, folder, separator);
        if (again.entries.size() != read.entries.size() || again.unreadable != 0)
            std::abort();
        for (std::size_t i = 0; i < read.entries.size(); ++i) {
            const auto& path = read.entries[i].path;
            // An address has but one separator.
            const bool isSame = again.entries[i].path == path || path.find('/') != std::string::npos;
            if (!isSame && (separator == '\\' || path.find('\\') == std::string::npos))
                std::abort();
            for (const auto& candidate : ListedPathCandidates(path, separator)) {
                if (candidate.size() > 2 * path.size())
                    std::abort();
            }
        }
    }
    return 0;
}
