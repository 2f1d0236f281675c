#pragma once

#include "base/PlayerSettings.h"
#include "playback/Engine.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zentaro {

/// The options of the settings. The snapshot folder, index 2, is only known for an item: see WithSnapshotFolder.
EngineOptions OptionsFromSettings(const PlayerSettings& settings);

/// The options with the snapshot folder of the media file `path` at index 2.
EngineOptions WithSnapshotFolder(
    EngineOptions options, const std::string& snapshotPath, const std::string& path, char separator);

/// Whether the library's list of its plug-ins has one that was changed at this time, in seconds since 1970: each has
/// other times after an update, and often after copying, and the library reads plug-ins itself that its list does not
/// know.
bool KnowsPlugin(std::string_view list, std::int64_t changed);

} // namespace zentaro
