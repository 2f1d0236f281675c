#include "shell/SettingsPages.h"

#include "base/Paths.h"
#include "base/Words.h"
#include "platform/Files.h"

#include <algorithm>
#include <type_traits>

namespace zentaro {

namespace {

constexpr int kNameAlone = 2; // every other title bar mode acts like it
constexpr int kLastPosition = 4;

/// The family of each media extension, in the same order.
constexpr std::array<const char*, kMediaExtensions.size()> kFamilyOfType{ "A&udio", "&Video", "&Matroska", "&Matroska",
    "A&udio", "MP&EG", "MP&EG", "MP&EG", "A&udio", "MP&EG", "MP&EG", "A&udio", "O&gg", "O&gg", "&QuickTime",
    "&QuickTime", "&QuickTime", "&QuickTime", "&QuickTime", "&QuickTime", "&Video", "&Windows", "&Windows",
    "&Windows" };

constexpr std::int16_t Flag(bool on)
{
    return on ? -1 : 0;
}

/// The settings file has no quotes around its texts: a comma ends one, a quote in front begins another kind.
bool IsCutByTheFile(const std::string& text)
{
    return text.find_first_of(",\r\n") != std::string::npos || text.starts_with('"') || text.starts_with(' ');
}

std::optional<PageFault> FaultInPath(const std::string& path)
{
    using enum PageFault::Field;
    if (!platform::IsAbsolutePath(path))
        return PageFault{ SnapshotPath, Words("Please choose a folder for the snapshots, with its whole path.") };
    if (IsCutByTheFile(path))
        return PageFault{ SnapshotPath,
            Words(
                "The folder's name can be kept only without a comma, and without a blank or a quote at its beginning. "
                "Please choose another folder.") };
    return std::nullopt;
}

std::optional<PageFault> FaultInPrefix(const std::string& prefix)
{
    using enum PageFault::Field;
    if (IsCutByTheFile(prefix))
        return PageFault{ SnapshotPrefix,
            Words("The prefix can be kept only without a comma, and without a blank or a quote at its beginning.") };
    if (prefix.find_first_of("/\\:*?\"<>|") != std::string::npos)
        return PageFault{ SnapshotPrefix, Words("A file's name cannot hold any of / \\ : * ? \" < > |") };
    return std::nullopt;
}

} // namespace

SettingsPages PagesOf(const PlayerSettings& settings)
{
    SettingsPages pages;
    pages.alwaysOnTop = settings.AlwaysOnTop != 0;
    pages.titleBarMode = settings.TitleBarMode == 0 || settings.TitleBarMode == 1 ? settings.TitleBarMode : kNameAlone;
    pages.keepHistory = settings.KeepHistory != 0;
    pages.launchFullScreen = settings.LaunchFullScreen != 0;
    pages.rememberLastPos = settings.RememberLastPos != 0;
    pages.rememberLastSize = settings.RememberLastSize != 0;
    pages.useNewPlayer = settings.UseNewPlayer != 0;
    pages.disableScreenSaver = settings.DisableScreenSaver != 0;
    pages.showInTray = settings.ShowInTray != 0;
    const auto position = settings.PlaylistPosition;
    pages.playlistPosition = position >= 0 && position <= kLastPosition ? position : 0;
    std::ranges::transform(settings.Associations, pages.associations.begin(), [](auto flag) { return flag != 0; });
    // Snapshots go to the pictures while the settings name no folder of this system.
    pages.snapshotPath =
        platform::IsAbsolutePath(settings.SnapshotPath) ? settings.SnapshotPath : platform::PicturesFolder();
    pages.snapshotPrefix = settings.SnapshotPrefix;
    pages.snapshotPreview = settings.SnapshotPreview != 0;
    return pages;
}

PlayerSettings WithPages(PlayerSettings settings, const SettingsPages& shown, const SettingsPages& chosen)
{
    const auto take = [](auto& stored, const auto& before, const auto& now) {
        if (now == before)
            return;
        if constexpr (std::is_same_v<decltype(now), const bool&>)
            stored = Flag(now);
        else
            stored = static_cast<std::remove_reference_t<decltype(stored)>>(now);
    };
    take(settings.AlwaysOnTop, shown.alwaysOnTop, chosen.alwaysOnTop);
    take(settings.TitleBarMode, shown.titleBarMode, chosen.titleBarMode);
    take(settings.KeepHistory, shown.keepHistory, chosen.keepHistory);
    take(settings.LaunchFullScreen, shown.launchFullScreen, chosen.launchFullScreen);
    take(settings.RememberLastPos, shown.rememberLastPos, chosen.rememberLastPos);
    take(settings.RememberLastSize, shown.rememberLastSize, chosen.rememberLastSize);
    take(settings.UseNewPlayer, shown.useNewPlayer, chosen.useNewPlayer);
    take(settings.DisableScreenSaver, shown.disableScreenSaver, chosen.disableScreenSaver);
    take(settings.ShowInTray, shown.showInTray, chosen.showInTray);
    take(settings.PlaylistPosition, shown.playlistPosition, chosen.playlistPosition);
    for (std::size_t type = 0; type < chosen.associations.size(); ++type)
        take(settings.Associations[type], shown.associations[type], chosen.associations[type]);
    take(settings.SnapshotPath, shown.snapshotPath, chosen.snapshotPath);
    take(settings.SnapshotPrefix, shown.snapshotPrefix, chosen.snapshotPrefix);
    take(settings.SnapshotPreview, shown.snapshotPreview, chosen.snapshotPreview);
    return settings;
}

std::optional<PageFault> FaultIn(const SettingsPages& shown, const SettingsPages& chosen)
{
    auto fault = chosen.snapshotPath != shown.snapshotPath ? FaultInPath(chosen.snapshotPath) : std::nullopt;
    if (!fault && chosen.snapshotPrefix != shown.snapshotPrefix)
        fault = FaultInPrefix(chosen.snapshotPrefix);
    return fault;
}

const std::vector<FileTypeFamily>& FileTypeFamilies()
{
    static const auto families = [] {
        std::vector<FileTypeFamily> result;
        for (std::size_t type = 0; type < kFamilyOfType.size(); ++type) {
            auto family = std::ranges::find(result, kFamilyOfType[type], &FileTypeFamily::name);
            if (family == result.end())
                family = result.insert(family, { kFamilyOfType[type], {} });
            family->members.push_back(type);
        }
        return result;
    }();
    return families;
}

Chosen ChosenOf(const std::array<bool, 24>& associations, std::span<const std::size_t> members)
{
    const auto chosen = std::ranges::count_if(members, [&](std::size_t index) { return associations[index]; });
    if (chosen == 0)
        return Chosen::None;
    return static_cast<std::size_t>(chosen) == members.size() ? Chosen::All : Chosen::Some;
}

void ToggleGroup(std::array<bool, 24>& associations, std::span<const std::size_t> members)
{
    const bool choose = ChosenOf(associations, members) != Chosen::All;
    for (const auto index : members)
        associations[index] = choose;
}

} // namespace zentaro
