#include "app/FocusAreas.h"
#include "app/VideoMenu.h"
#include "app/WindowMenus.h"
#include "app/frmMain.h"
#include "playback/VideoFrame.h"
#include "playlist/FancyList.h"
#include "shell/FullScreenBar.h"
#include "shell/MenuStrip.h"

#include <QContextMenuEvent>

#include <algorithm>

// What the keys ask of the window itself.
namespace zentaro {

void frmMain::Do(WindowAction action)
{
    switch (action) {
    case WindowAction::Minimize:
        return showMinimized();
    case WindowAction::ToggleMaximized:
        return ToggleMaximized();
    case WindowAction::ContextMenu:
        return ShowMenuOfFocus();
    case WindowAction::OpenMenuStrip:
        return m_strip->OpenFirst();
    case WindowAction::NextArea:
        return m_areas->Step(1);
    case WindowAction::PreviousArea:
        return m_areas->Step(-1);
    }
}

void frmMain::ShowMenuOfFocus()
{
    if (!m_list->hasFocus()) {
        const auto& over = m_video->isVisible() ? static_cast<QWidget&>(*m_video) : *this;
        return ShowVideoMenu(*this, m_player, over.mapToGlobal(over.rect().center()), true);
    }
    const auto row = m_list->Layout().RowRect(std::max(m_list->SelectedItem(), 0));
    const auto at = QPoint(row.left + 40, std::clamp(row.bottom, 0, m_list->height()));
    m_menus->Popup("mnuPlayListmenu", m_list->mapToGlobal(at), true);
}

void frmMain::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        ShowMenuOfFocus();
}

bool frmMain::focusNextPrevChild(bool next)
{
    // In full screen the controls are out of sight until they are asked for.
    if (FillsScreen() && !m_bar->isVisible()) {
        m_areas->Step(next ? 1 : -1);
        return true;
    }
    return WindowFrame::focusNextPrevChild(next);
}

} // namespace zentaro
