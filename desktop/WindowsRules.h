#pragma once

#include "desktop/MediaStatus.h"

#include <chrono>
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

/// What a button of the system's own media controls means, by its number there; nothing for one that is not ours.
std::optional<MediaCommand::Kind> KindOfSystemButton(int number);

/// What of the player these controls have to be told anew. They count the item's place on by themselves; a word now and
/// then keeps it right.
bool IsNewsOfButtons(const MediaStatus& told, const MediaStatus& now);
bool IsNewsOfTrack(const MediaStatus& told, const MediaStatus& now);
bool IsNewsOfPlace(const MediaStatus& told, const MediaStatus& now);

/// A media key can come twice: to the window that has the focus, and from the system's media controls. It acts once.
class MediaKeys {
public:
    enum class Way { Window, System };
    /// False for a press that has just acted when it came the other way.
    bool Acts(Way way, MediaCommand::Kind kind, std::chrono::steady_clock::time_point now);

private:
    struct Press {
        Way way;
        MediaCommand::Kind kind;
        std::chrono::steady_clock::time_point time;
    };
    std::vector<Press> m_presses; // that may still come the other way
};

/// A file at the program's taskbar button: what the program is started with to play it, and what is shown of it.
struct JumpListItem {
    std::string arguments;
    std::string title;
    std::string tip;
    bool operator==(const JumpListItem&) const = default;
};
/// The files that were played, each once, without those that the user has taken off the list, which go by their
/// arguments.
std::vector<JumpListItem> JumpListOf(const std::vector<MediaTrack>& recent, const std::vector<std::string>& removed);

/// One text of the registry below HKEY_CURRENT_USER.
struct RegistryText {
    std::string key;
    std::string name;
    std::string text;
    bool operator==(const RegistryText&) const = default;
};

/// What makes the system offer a program for types of files, beside what the types themselves say: as one to open them
/// with, and among the default programs. `folder`: that of the executables, with a trailing separator; `extensions`
/// with their dots, each with its type's name.
///
/// The commands of a type are started once for each selected file. So each command has a drop target beside it, which
/// Explorer prefers: one call of "zentaro-add.exe" for the whole selection.
std::vector<RegistryText> RegistrationOf(
    const std::string& folder, const std::vector<std::pair<std::string, std::string>>& extensions);

/// The names under which the system knows these drop targets.
inline constexpr const char* kOpenClass = "{5654b695-d101-4a37-a963-b7e0dfcb034c}";
inline constexpr const char* kAddClass = "{a1ce86e9-8c37-4ea6-b00f-e9efb6fa7c64}";
/// The keys, below HKEY_CURRENT_USER, that hold nothing but them: of all types, and of one type by its name.
std::vector<std::string> DropTargetKeys();
std::vector<std::string> DropTargetKeys(const std::string& type);

/// Keys that hold nothing but a registration, and the value that names it: what goes with the last type.
inline constexpr const char* kApplicationKey = "Software\\Classes\\Applications\\zentaro.exe";
inline constexpr const char* kCapabilitiesKey = "Software\\Quorvane\\Zentaro\\Capabilities";
inline constexpr const char* kRegisteredKey = "Software\\RegisteredApplications";
inline constexpr const char* kRegisteredName = "Zentaro";

/// The key that offers a type's programs.
std::string OpenWithKey(const std::string& extension);

} // namespace zentaro::desktop
