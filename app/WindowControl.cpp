#include "app/WindowControl.h"

#include "shell/Caption.h"

namespace zentaro {

WindowControl::WindowControl(
    SettingsStore& settings, Transport& transport, const Playlist& entries, const PlayerFace& face)
    : m_settings(settings)
    , m_transport(transport)
    , m_entries(entries)
    , m_face(face)
    , m_caption(kProgramName)
{
}

void WindowControl::SetLoadedOptions()
{
    // Sizes that the window takes on are recorded, so the settings are read before the first of them is.
    const auto settings = m_settings.Settings();
    if (settings.RememberLastSize != 0)
        m_face.window->SetWindowSize(settings.WindowWidth, settings.WindowHeight);
    if (settings.RememberLastPos != 0)
        m_face.window->SetWindowPosition(settings.WindowLeft, settings.WindowTop);
    m_hasTrayIcon = settings.ShowInTray != 0;
    SetTopmost(settings.AlwaysOnTop != 0);
    if (m_transport.State().mediaControlsEnabled)
        ShowCaption();
    if (m_dock != PlaylistDock::Hidden)
        SetPlaylistPosition(m_settings.StoredDock());
}

void WindowControl::ShowCaption()
{
    const auto entry = m_entries.SelectedEntry();
    m_caption = CaptionText({ m_settings.Settings().TitleBarMode, m_entries.List().SelectedText(),
        entry ? entry->FullPath : std::string() });
    m_face.window->StateChanged();
}

void WindowControl::ClearCaption()
{
    m_caption = kProgramName;
    m_face.window->StateChanged();
}

void WindowControl::RemoveTrayIcon()
{
    m_hasTrayIcon = false;
    m_face.window->StateChanged();
}

void WindowControl::WindowResized(int width, int height)
{
    if (!m_face.window->IsMaximized())
        m_settings.SetWindowSize(width, height);
}

void WindowControl::SetPlaylistPosition(PlaylistDock position)
{
    m_dock = position;
    m_face.window->StateChanged();
}

void WindowControl::DockPlaylist(PlaylistDock position)
{
    m_settings.StoreDock(position);
    SetPlaylistPosition(position);
}

void WindowControl::BringFilmForward()
{
    if (m_dock == PlaylistDock::Whole)
        SetPlaylistPosition(PlaylistDock::Hidden);
}

void WindowControl::cmdPlayListClick()
{
    SetPlaylistPosition(m_dock == PlaylistDock::Hidden ? m_settings.StoredDock() : PlaylistDock::Hidden);
}

void WindowControl::cmdFulScreenClick()
{
    m_transport.Host().SetFullScreen(true);
}

void WindowControl::ToggleFullScreen()
{
    m_transport.Host().SetFullScreen(!m_face.window->IsFullScreen());
}

void WindowControl::LeaveFullScreen()
{
    if (m_face.window->IsFullScreen())
        m_transport.Host().SetFullScreen(false);
}

void WindowControl::ShowOptions()
{
    SetTopmost(false);
    m_face.dialogs->ShowOptions();
}

void WindowControl::ShowAbout()
{
    SetTopmost(false);
    m_face.dialogs->ShowAbout();
}

void WindowControl::OptionsCommitted()
{
    SetLoadedOptions();
    SetTopmost(false);
}

void WindowControl::DialogClosed()
{
    SetTopmost(m_settings.Settings().AlwaysOnTop != 0);
}

void WindowControl::SetTopmost(bool topmost)
{
    m_isTopmost = topmost;
    m_face.window->StateChanged();
}

} // namespace zentaro
