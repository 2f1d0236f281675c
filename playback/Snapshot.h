#pragma once

#include <functional>
#include <string>

namespace zentaro {

/// The folder of the media file's snapshots, one of its own below `base`, without a trailing separator.
std::string SnapshotFolder(const std::string& base, const std::string& path, char separator);

/// The first name of the row "<prefix>00001.png", "<prefix>00002.png", ... that is not taken; empty when all are.
std::string NextSnapshotName(
    const std::string& prefix, char separator, const std::function<bool(const std::string& name)>& isTaken);

} // namespace zentaro
