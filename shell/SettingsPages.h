#pragma once

#include "base/PlayerSettings.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zentaro {

/// What the options dialog shows of the settings and gives back. Window-free: the pages only fill in what stands here.
struct SettingsPages {
    bool alwaysOnTop = false;
    int titleBarMode = 1; // 0 title, 1 full path, 2 the program's name alone
    bool keepHistory = false;
    bool launchFullScreen = false;
    bool rememberLastPos = false;
    bool rememberLastSize = false;
    bool useNewPlayer = false;
    bool disableScreenSaver = false;
    bool showInTray = false;
    int playlistPosition = 0; // 0 left, 1 right, 2 top, 3 bottom, 4 the whole window
    std::array<bool, 24> associations{};
    std::string snapshotPath;
    std::string snapshotPrefix;
    bool snapshotPreview = false;

    bool operator==(const SettingsPages&) const = default;
};

/// A number that names no choice shows as the one that it acts like.
SettingsPages PagesOf(const PlayerSettings& settings);

/// The settings with what the user has changed between `shown` and `chosen`; all else stays as it is stored, also where
/// the pages showed it as something else. A flag that is on becomes -1, one that is off 0.
PlayerSettings WithPages(PlayerSettings settings, const SettingsPages& shown, const SettingsPages& chosen);

/// A value that must not be stored, and why.
struct PageFault {
    enum class Field { SnapshotPath, SnapshotPrefix };
    Field field;
    std::string text;
};
/// The first value among those that were changed that the settings file or the file system could not keep, or nothing.
std::optional<PageFault> FaultIn(const SettingsPages& shown, const SettingsPages& chosen);

/// File types that can be chosen together. Every type belongs to one family.
struct FileTypeFamily {
    std::string name;                 ///< with "&" before its access letter
    std::vector<std::size_t> members; ///< indexes of file types, in the order of kMediaExtensions
};
const std::vector<FileTypeFamily>& FileTypeFamilies();

/// How many of a group of file types are chosen.
enum class Chosen { None, Some, All };
/// `members` are indexes of file types.
Chosen ChosenOf(const std::array<bool, 24>& associations, std::span<const std::size_t> members);
/// What a click on the group's box makes: all of them, or none when all were chosen.
void ToggleGroup(std::array<bool, 24>& associations, std::span<const std::size_t> members);

} // namespace zentaro
