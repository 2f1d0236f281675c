#include "app/Player.h"
#include "app/frmMain.h"
#include "app/frmMenu.h"
#include "shell/Caption.h"
#include "shell/SkinButton.h"

#include <QMenu>
#include <QSystemTrayIcon>

// The window's menus, the tray icon and the dialogs.
namespace zentaro {

void frmMain::ShowOptions()
{
    if (onShowOptions)
        onShowOptions();
}

void frmMain::ShowAbout()
{
    if (onShowAbout)
        onShowAbout();
}

void frmMain::ShowHelp()
{
    if (onShowHelp)
        onShowHelp();
}

frmMenu& frmMain::ClassicMenus()
{
    if (m_menus == nullptr)
        m_menus = new frmMenu(*m_player, this);
    return *m_menus;
}

void frmMain::SetTrayShown(bool shown)
{
    m_hasTrayIcon = shown;
    // A messenger reads the settings, too, and is to stay unseen.
    if (!isVisible() || shown == (m_tray != nullptr))
        return;
    delete m_tray.data();
    if (!shown)
        return;
    m_tray = new QSystemTrayIcon(windowIcon(), this);
    m_tray->setToolTip(kApplicationTitle);
    // The right button opens it as soon as it goes down; the icon has nothing else to say.
    m_tray->setContextMenu(ClassicMenus().Menu("mnuFileMenu"));
    m_tray->show();
}

void frmMain::PopupMenu(const std::string& menu)
{
    if (menu != "mnuOpenDVD") {
        ClassicMenus().Popup(menu, QCursor::pos());
        return;
    }
    const auto* const button = m_buttons[Button::Dvd];
    ClassicMenus().PopupAbove(menu, button->mapToGlobal(QPoint()));
}

} // namespace zentaro
