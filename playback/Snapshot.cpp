#include "playback/Snapshot.h"

#include "base/Paths.h"

#include <algorithm>

namespace zentaro {

namespace {

constexpr int kMostSnapshots = 99999;
constexpr std::size_t kDigits = 5;

} // namespace

std::string SnapshotFolder(const std::string& base, const std::string& path, char separator)
{
    return WithTrailingSeparator(base, separator) + FileNamePart(path, separator) + " Images";
}

std::string NextSnapshotName(
    const std::string& prefix, char separator, const std::function<bool(const std::string& name)>& isTaken)
{
    // A prefix is part of a name and leads into no other folder.
    auto start = prefix;
    std::replace(start.begin(), start.end(), separator, '_');
    for (int number = 1; number <= kMostSnapshots; ++number) {
        const auto digits = std::to_string(number);
        const auto name = start + std::string(kDigits - digits.size(), '0') + digits + ".png";
        if (!isTaken(name))
            return name;
    }
    return {};
}

} // namespace zentaro
