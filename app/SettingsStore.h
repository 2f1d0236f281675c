#pragma once

#include "app/ConfigFile.h"
#include "base/Result.h"
#include "playback/Engine.h"
#include "playback/Ways.h"
#include "shell/SettingsPages.h"
#include "shell/WindowLayout.h"

#include <optional>
#include <string>

namespace zentaro {

/// The left upper corner of a window, in twips.
struct WindowPlace {
    double left = 0;
    double top = 0;
};

/// The settings of this run and the file that keeps them, `Config.cfg`.
class SettingsStore {
public:
    /// `folder`: with a trailing separator.
    SettingsStore(std::string folder, char separator);

    const PlayerSettings& Settings() const { return m_settings; }
    /// Which ways the user knows; not in `Config.cfg`.
    const Ways& ChosenWays() const { return m_ways; }
    void SetWays(Ways ways) { m_ways = ways; }
    /// Between the folders of a path.
    char Separator() const { return m_separator; }

    /// Reads the file. A missing or damaged one is replaced by the defaults; one that cannot be read now stays as it
    /// is, and the defaults hold for this run.
    void LoadConfigurations(const ScreenExtent& screen);
    /// False when the file could not be read: what it holds is not in the settings.
    bool IsRead() const { return m_isRead; }
    /// Reads it once more where that has failed; its settings take the place of those of this run.
    void TryAgain();
    /// Fails when the file is gone, was not read or must not be written; nothing has changed then. Without a place the
    /// one of before stays.
    Result<void> WriteConfigurations(std::optional<WindowPlace> place);
    /// Works the engine's options out of the settings.
    void SaveVLCOptions();
    /// The engine's options for an item; its file name part names the folder of its snapshots.
    EngineOptions ItemOptions(const std::string& path) const;
    /// Where the snapshots of that item belong, without a trailing separator.
    std::string SnapshotFolderOf(const std::string& path) const;

    /// As WithPages.
    void TakePages(const SettingsPages& shown, const SettingsPages& chosen)
    {
        m_settings = WithPages(m_settings, shown, chosen);
    }
    void SetPlayMode(std::int32_t mode) { m_settings.PlayMode = mode; }
    void SetRepeatMode(std::int32_t mode) { m_settings.RepeatMode = mode; }
    void SetWindowSize(int width, int height);
    /// Where the list is docked when it is shown.
    PlaylistDock StoredDock() const;
    void StoreDock(PlaylistDock dock) { m_settings.PlaylistPosition = static_cast<std::int32_t>(dock); }

private:
    void Take(PlayerSettings settings);

    std::string m_path;
    char m_separator;
    bool m_isRead = true;
    PlayerSettings m_settings;
    Ways m_ways;
    EngineOptions m_options;
};

} // namespace zentaro
