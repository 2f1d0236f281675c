#pragma once

#include "desktop/MediaStatus.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

// What a Windows desktop is told about the player, and asks of it.
namespace zentaro::desktop {

/// What a media key or a remote control means, by the number of WM_APPCOMMAND; nothing for one that is not ours.
std::optional<MediaCommand::Kind> KindOfAppCommand(int number);

/// The buttons at the taskbar.
struct TaskbarLook {
    bool showsPause = false; ///< the middle one
    bool canPlay = false;
    bool canStep = false;
};
TaskbarLook TaskbarLookOf(const MediaStatus& status);

/// One text of the registry below HKEY_CURRENT_USER.
struct RegistryText {
    std::string key;
    std::string name;
    std::string text;
    bool operator==(const RegistryText&) const = default;
};

/// What makes the system offer a program for types of files, beside what the types themselves say: as one to open them
/// with, and among the default programs. `program`: the executable's path; `extensions` with their dots, each with its
/// type's name.
std::vector<RegistryText> RegistrationOf(
    const std::string& program, const std::vector<std::pair<std::string, std::string>>& extensions);

/// Keys that hold nothing but a registration, and the value that names it: what goes with the last type.
inline constexpr const char* kApplicationKey = "Software\\Classes\\Applications\\zentaro.exe";
inline constexpr const char* kCapabilitiesKey = "Software\\Quorvane\\Zentaro\\Capabilities";
inline constexpr const char* kRegisteredKey = "Software\\RegisteredApplications";
inline constexpr const char* kRegisteredName = "Zentaro";

/// The key that offers a type's programs.
std::string OpenWithKey(const std::string& extension);

} // namespace zentaro::desktop
