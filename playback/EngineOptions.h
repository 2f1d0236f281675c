#pragma once

#include "base/PlayerSettings.h"
#include "playback/Engine.h"

#include <string>

namespace zentaro {

/// The options of the settings. The snapshot folder, index 2, is only known for an item: see WithSnapshotFolder.
EngineOptions OptionsFromSettings(const PlayerSettings& settings);

/// The options with the snapshot folder of the media file `path` at index 2.
EngineOptions WithSnapshotFolder(
    EngineOptions options, const std::string& snapshotPath, const std::string& path, char separator);

} // namespace zentaro
