#include "playback/EngineOptions.h"

#include "base/Paths.h"

namespace zentaro {

namespace {

std::string Switch(std::int16_t flag, const std::string& name)
{
    return (flag == 0 ? "no-" : "") + name;
}

} // namespace

EngineOptions OptionsFromSettings(const PlayerSettings& settings)
{
    return {
        "overlay",
        "snapshot-prefix=" + settings.SnapshotPrefix,
        "snapshot-path=C:\\",
        "snapshot-format=PNG", // whatever SnapshotPng holds: the engine writes nothing else
        Switch(settings.SnapshotPreview, "snapshot-preview"),
        "snapshot-sequential",
        Switch(settings.DisableScreenSaver, "disable-screensaver"),
        "snapshot-Width=640",
        "snapshot-Height=480",
    };
}

EngineOptions WithSnapshotFolder(
    EngineOptions options, const std::string& snapshotPath, const std::string& path, char separator)
{
    options[2] = "snapshot-path=" + snapshotPath + "\\" + FileNamePart(path, separator) + " Images";
    return options;
}

bool KnowsPlugin(std::string_view list, std::int64_t changed)
{
    std::string number(sizeof changed, '\0');
    for (std::size_t i = 0; i < number.size(); ++i)
        number[i] = static_cast<char>(changed >> 8 * i & 0xFF);
    return list.find(number) != std::string_view::npos;
}

} // namespace zentaro
