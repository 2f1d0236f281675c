#pragma once

#include "desktop/MediaStatus.h"

#include <vector>

namespace zentaro::platform {

/// Shows the files at the program's taskbar button, to be played from there; none takes the list away. On a thread that
/// has come into COM.
void ShowJumpList(const std::vector<desktop::MediaTrack>& recent);

} // namespace zentaro::platform
