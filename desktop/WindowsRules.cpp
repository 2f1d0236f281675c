#include "desktop/WindowsRules.h"

#include "desktop/MprisRules.h"

namespace zentaro::desktop {

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

std::string OpenWithKey(const std::string& extension)
{
    return "Software\\Classes\\" + extension + "\\OpenWithProgids";
}

std::vector<RegistryText> RegistrationOf(
    const std::string& program, const std::vector<std::pair<std::string, std::string>>& extensions)
{
    const std::string application = kApplicationKey;
    const std::string capabilities = kCapabilitiesKey;
    std::vector<RegistryText> texts = { { application, "FriendlyAppName", "Zentaro" },
        { application + "\\shell\\open\\command", "", '"' + program + "\" \"%1\"" },
        { application + "\\DefaultIcon", "", '"' + program + "\",0" }, { capabilities, "ApplicationName", "Zentaro" },
        { capabilities, "ApplicationDescription", "Plays films and music" },
        { kRegisteredKey, kRegisteredName, capabilities } };
    for (const auto& [extension, type] : extensions) {
        texts.push_back({ application + "\\SupportedTypes", extension, "" });
        texts.push_back({ capabilities + "\\FileAssociations", extension, type });
        texts.push_back({ OpenWithKey(extension), type, "" });
    }
    return texts;
}

} // namespace zentaro::desktop
