#include "app/SettingsStore.h"

#include "base/Numbers.h"
#include "platform/Files.h"
#include "playback/EngineOptions.h"
#include "playback/Snapshot.h"

#include <utility>

namespace zentaro {

namespace {

constexpr std::size_t kConfigLimit = 1 << 20; // bytes; 46 lines are far shorter

} // namespace

SettingsStore::SettingsStore(std::string folder, char separator)
    : m_path(std::move(folder) + "Config.cfg")
    , m_separator(separator)
{
}

void SettingsStore::LoadConfigurations(const ScreenExtent& screen)
{
    const auto file = platform::ReadFileText(m_path, kConfigLimit);
    // Another program may hold it for a moment, or a disk refuse it: the settings in it are good all the same.
    m_isRead = file.state != platform::FileState::Unreadable;
    auto loaded = ParseConfigurations(file.text);
    if (!loaded) {
        loaded = DefaultSettings(platform::DesktopFolder(), screen);
        // A damaged file is replaced, a missing one made; one that must not be written stays as it is.
        if (m_isRead && (!platform::PathExists(m_path) || platform::MayWriteFile(m_path)))
            IgnoreFailure(platform::ReplaceTextFile(m_path, FormatConfigurations(*loaded)));
    }
    Take(std::move(*loaded));
}

void SettingsStore::TryAgain()
{
    if (m_isRead)
        return;
    const auto file = platform::ReadFileText(m_path, kConfigLimit);
    m_isRead = file.state != platform::FileState::Unreadable;
    if (auto loaded = ParseConfigurations(file.text))
        Take(std::move(*loaded));
}

void SettingsStore::Take(PlayerSettings settings)
{
    if (settings.DefaultFolder.find_first_not_of(' ') == std::string::npos)
        settings.DefaultFolder = platform::DesktopFolder();
    m_settings = std::move(settings);
    SaveVLCOptions();
}

Result<void> SettingsStore::WriteConfigurations(std::optional<WindowPlace> place)
{
    if (place) {
        m_settings.WindowLeft = RoundHalfEven(place->left);
        m_settings.WindowTop = RoundHalfEven(place->top);
    }
    if (!m_isRead || !platform::MayWriteFile(m_path))
        return Error{ 0, "Config.cfg cannot be replaced" };
    return platform::ReplaceTextFile(m_path, FormatConfigurations(m_settings));
}

void SettingsStore::SaveVLCOptions()
{
    m_options = OptionsFromSettings(m_settings);
}

EngineOptions SettingsStore::ItemOptions(const std::string& path) const
{
    return WithSnapshotFolder(m_options, m_settings.SnapshotPath, path, m_separator);
}

std::string SettingsStore::SnapshotFolderOf(const std::string& path) const
{
    // The folder of the defaults names a place of another system. There, and for no folder at all, the pictures go to
    // where users look for pictures.
    const auto& chosen = m_settings.SnapshotPath;
    return SnapshotFolder(platform::IsAbsolutePath(chosen) ? chosen : platform::PicturesFolder(), path, m_separator);
}

void SettingsStore::SetWindowSize(int width, int height)
{
    m_settings.WindowWidth = width;
    m_settings.WindowHeight = height;
}

PlaylistDock SettingsStore::StoredDock() const
{
    const auto position = m_settings.PlaylistPosition;
    return position >= 0 && position <= 4 ? static_cast<PlaylistDock>(position) : PlaylistDock::Left;
}

} // namespace zentaro
