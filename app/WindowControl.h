#pragma once

#include "app/PlayerFace.h"
#include "app/SettingsStore.h"
#include "playback/Transport.h"
#include "playlist/Playlist.h"

#include <string>

namespace zentaro {

/// What settings and user want of the window: its caption, where the list lies, full screen, on top or not.
class WindowControl {
public:
    WindowControl(SettingsStore& settings, Transport& transport, const Playlist& entries, const PlayerFace& face);

    const std::string& Caption() const { return m_caption; }
    /// Where the list is now; Hidden while it is not shown.
    PlaylistDock Dock() const { return m_dock; }
    bool IsTopmost() const { return m_isTopmost; }
    bool HasTrayIcon() const { return m_hasTrayIcon; }

    /// Applies the settings to the window.
    void SetLoadedOptions();
    /// The caption of the selected entry.
    void ShowCaption();
    /// Nothing is loaded that the caption could name.
    void ClearCaption();
    void RemoveTrayIcon();
    /// The window has a new size in logical pixels, by the user's hand or by the settings.
    void WindowResized(int width, int height);

    void SetPlaylistPosition(PlaylistDock position);
    /// The list lies there from now on, also after a restart.
    void DockPlaylist(PlaylistDock position);
    /// A chosen item starts: a list that takes the whole window goes from before it, until it is asked for again.
    void BringFilmForward();
    /// Shows or hides the list.
    void cmdPlayListClick();

    void cmdFulScreenClick();
    /// By what the window shows.
    void ToggleFullScreen();
    void LeaveFullScreen();

    /// Shows the options; the window is not held on top until they are closed.
    void ShowOptions();
    void ShowAbout();
    /// Options were taken over while their dialog is open: the dialog stays above the window.
    void OptionsCommitted();
    void DialogClosed();

private:
    void SetTopmost(bool topmost);

    SettingsStore& m_settings;
    Transport& m_transport;
    const Playlist& m_entries;
    const PlayerFace& m_face;
    std::string m_caption;
    PlaylistDock m_dock = PlaylistDock::Hidden;
    bool m_isTopmost = false;
    bool m_hasTrayIcon = false;
};

} // namespace zentaro
