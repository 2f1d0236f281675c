#include "base/Paths.h"
#include "playlist/OpenFiles.h"

#include <cstdlib>
#include <set>

using namespace zentaro;

/// The open dialog's answer; the first byte chooses the separator.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const char separator = data[0] % 2 == 0 ? '/' : '\\';
    const std::string_view answer(reinterpret_cast<const char*>(data) + 1, size - 1);
    const auto files = ParseOpenFileResult(answer, separator);
    if (!files)
        return 0;
    std::set<std::string> names;
    std::vector<std::string> paths;
    for (const auto& file : *files) {
        if (!names.insert(file.key).second || !file.path.ends_with(file.key))
            std::abort();
        paths.push_back(file.path);
    }
    // Paths packed into answers again come out as they went in, folder by folder.
    std::multiset<std::string> unpacked;
    bool everyNameOnce = true;
    for (const auto& result : OpenFileResults(paths, separator)) {
        const auto again = ParseOpenFileResult(result, separator);
        everyNameOnce = everyNameOnce && again;
        for (std::size_t i = 0; again && i < again->size(); ++i)
            unpacked.insert((*again)[i].path);
    }
    if (everyNameOnce && unpacked != std::multiset<std::string>(paths.begin(), paths.end()))
        std::abort();
    return 0;
}
