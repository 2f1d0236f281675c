#include "desktop/WindowsRules.h"

#include "desktop/MprisRules.h"

#include <algorithm>

namespace zentaro::desktop {

namespace {

const std::string kClasses = "Software\\Classes\\";
constexpr auto kBothWays = std::chrono::milliseconds(500); // between a key's two ways, on a busy computer
constexpr auto kPlaceIsGood = std::chrono::seconds(5);

/// One key is three commands: the controls say which of them it is, the window is told of the key.
MediaCommand::Kind KeyOf(MediaCommand::Kind kind)
{
    using Kind = MediaCommand::Kind;
    return kind == Kind::Play || kind == Kind::Pause ? Kind::PlayPause : kind;
}

} // namespace

std::optional<MediaCommand::Kind> KindOfAppCommand(int number)
{
    using Kind = MediaCommand::Kind;
    switch (number) {
    case 11:
        return Kind::Next;
    case 12:
        return Kind::Previous;
    case 13:
        return Kind::Stop;
    case 14:
        return Kind::PlayPause;
    case 46:
        return Kind::Play;
    case 47:
        return Kind::Pause;
    default:
        return std::nullopt;
    }
}

TaskbarLook TaskbarLookOf(const MediaStatus& status)
{
    return { status.playback == MediaPlayback::Playing, CanPlay(status), CanStep(status) };
}

std::optional<MediaCommand::Kind> KindOfSystemButton(int number)
{
    using Kind = MediaCommand::Kind;
    switch (number) {
    case 0:
        return Kind::Play;
    case 1:
        return Kind::Pause;
    case 2:
        return Kind::Stop;
    case 6:
        return Kind::Next;
    case 7:
        return Kind::Previous;
    default:
        return std::nullopt;
    }
}

bool IsNewsOfButtons(const MediaStatus& told, const MediaStatus& now)
{
    return told.playback != now.playback || CanPlay(told) != CanPlay(now) || CanStep(told) != CanStep(now);
}

bool IsNewsOfTrack(const MediaStatus& told, const MediaStatus& now)
{
    return told.track != now.track || told.artwork != now.artwork;
}

bool IsNewsOfPlace(const MediaStatus& told, const MediaStatus& now)
{
    return told.track.id != now.track.id || told.playback != now.playback || told.length != now.length
        || told.rate != now.rate || HasJumped(told, now)
        || (now.playback == MediaPlayback::Playing && now.readAt - told.readAt >= kPlaceIsGood);
}

bool MediaKeys::Acts(Way way, MediaCommand::Kind kind, std::chrono::steady_clock::time_point now)
{
    std::erase_if(m_presses, [&](const Press& press) { return now - press.time > kBothWays; });
    const auto other = std::ranges::find_if(
        m_presses, [&](const Press& press) { return press.way != way && press.kind == KeyOf(kind); });
    if (other == m_presses.end()) {
        m_presses.push_back({ way, KeyOf(kind), now });
        return true;
    }
    m_presses.erase(other);
    return false;
}

std::vector<JumpListItem> JumpListOf(const std::vector<MediaTrack>& recent, const std::vector<std::string>& removed)
{
    constexpr std::size_t longestTip = 1000; // bytes; the system refuses links with longer ones
    std::vector<JumpListItem> items;
    for (const auto& file : recent) {
        JumpListItem item{ '"' + file.path + '"', file.title, file.path };
        if (item.tip.size() > longestTip)
            item.tip = item.title.size() > longestTip ? std::string() : item.title;
        if (std::ranges::find(items, item) == items.end()
            && std::ranges::find(removed, item.arguments) == removed.end())
            items.push_back(std::move(item));
    }
    return items;
}

std::string OpenWithKey(const std::string& extension)
{
    return kClasses + extension + "\\OpenWithProgids";
}

std::vector<std::string> DropTargetKeys()
{
    return { kClasses + "CLSID\\" + kOpenClass, kClasses + "CLSID\\" + kAddClass };
}

std::vector<std::string> DropTargetKeys(const std::string& type)
{
    const auto shell = kClasses + type + "\\shell\\";
    return { shell + "open\\DropTarget", shell + "Add To Playlist\\DropTarget" };
}

std::vector<RegistryText> RegistrationOf(
    const std::string& folder, const std::vector<std::pair<std::string, std::string>>& extensions)
{
    const auto program = '"' + folder + "zentaro.exe\"";
    const std::string application = kApplicationKey;
    const std::string capabilities = kCapabilitiesKey;
    std::vector<RegistryText> texts = { { application, "FriendlyAppName", "Zentaro" },
        { application + "\\shell\\open\\command", "", program + " \"%1\"" },
        { application + "\\shell\\open\\DropTarget", "CLSID", kOpenClass },
        { application + "\\DefaultIcon", "", program + ",0" }, { capabilities, "ApplicationName", "Zentaro" },
        { capabilities, "ApplicationDescription", "Plays films and music" },
        { kRegisteredKey, kRegisteredName, capabilities } };
    for (const auto& key : DropTargetKeys()) {
        texts.push_back({ key, "", "Zentaro" });
        texts.push_back({ key + "\\LocalServer32", "", '"' + folder + "zentaro-add.exe\"" });
    }
    for (const auto& [extension, type] : extensions) {
        texts.push_back({ application + "\\SupportedTypes", extension, "" });
        texts.push_back({ capabilities + "\\FileAssociations", extension, type });
        texts.push_back({ OpenWithKey(extension), type, "" });
        const auto keys = DropTargetKeys(type);
        texts.push_back({ keys[0], "CLSID", kOpenClass });
        texts.push_back({ keys[1], "CLSID", kAddClass });
    }
    return texts;
}

} // namespace zentaro::desktop
