#include "shell/SettingsPages.h"

#include "base/Paths.h"
#include "platform/Files.h"

#include <algorithm>

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

PlayerSettings WithPages(PlayerSettings settings, const SettingsPages& pages)
{
    settings.AlwaysOnTop = Flag(pages.alwaysOnTop);
    settings.TitleBarMode = static_cast<std::int16_t>(pages.titleBarMode);
    settings.KeepHistory = Flag(pages.keepHistory);
    settings.LaunchFullScreen = Flag(pages.launchFullScreen);
    settings.RememberLastPos = Flag(pages.rememberLastPos);
    settings.RememberLastSize = Flag(pages.rememberLastSize);
    settings.UseNewPlayer = Flag(pages.useNewPlayer);
    settings.DisableScreenSaver = Flag(pages.disableScreenSaver);
    settings.ShowInTray = Flag(pages.showInTray);
    settings.PlaylistPosition = pages.playlistPosition;
    std::ranges::transform(pages.associations, settings.Associations.begin(), Flag);
    settings.SnapshotPath = pages.snapshotPath;
    settings.SnapshotPrefix = pages.snapshotPrefix;
    settings.SnapshotPreview = Flag(pages.snapshotPreview);
    return settings;
}

std::optional<PageFault> FaultIn(const SettingsPages& pages)
{
    using enum PageFault::Field;
    if (!platform::IsAbsolutePath(pages.snapshotPath))
        return PageFault{ SnapshotPath, "Please choose a folder for the snapshots, with its whole path." };
    if (IsCutByTheFile(pages.snapshotPath))
        return PageFault{ SnapshotPath,
            "The folder's name can be kept only without a comma, and without a blank or a quote at its beginning. "
            "Please choose another folder." };
    if (IsCutByTheFile(pages.snapshotPrefix))
        return PageFault{ SnapshotPrefix,
            "The prefix can be kept only without a comma, and without a blank or a quote at its beginning." };
    if (pages.snapshotPrefix.find_first_of("/\\:*?\"<>|") != std::string::npos)
        return PageFault{ SnapshotPrefix, "A file's name cannot hold any of / \\ : * ? \" < > |" };
    return std::nullopt;
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
