#pragma once

#include "inspect/StreamInfo.h"

#include <string>
#include <vector>

namespace zentaro {

/// The aspect's name ("Widescreen (16:9)"), or the number of two decimals and ":1".
std::string AspectName(float aspect);

/// The report for the user, its lines joined by CR LF. `duration` and `startTime` in seconds.
std::string StreamReport(
    const std::string& fileName, float duration, float startTime, const std::vector<StreamInfo>& streams);

} // namespace zentaro
