#pragma once

#include "base/PlayerSettings.h"

#include <optional>
#include <string>
#include <string_view>

namespace zentaro {

/// Width and height of the whole screen in twips, 15 to a logical pixel.
struct ScreenExtent {
    double width = 0;
    double height = 0;
};

/// The record that a start without a readable `Config.cfg` begins with: the window centred by its stored size.
PlayerSettings DefaultSettings(const std::string& desktopFolder, const ScreenExtent& screen);

/// Reads the 46 values of a `Config.cfg`, one to a line. Nothing when a line is missing or holds no number where one is
/// due: a damaged file loses all its values, never single ones.
std::optional<PlayerSettings> ParseConfigurations(std::string_view text);

/// The complete text of a `Config.cfg`: 46 lines ended by CR LF, numbers in print form, strings as they stand.
std::string FormatConfigurations(const PlayerSettings& settings);

} // namespace zentaro
