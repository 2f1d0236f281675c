#include "app/WindowMenus.h"

#include "app/ListMenu.h"
#include "app/Player.h"
#include "app/frmMenu.h"
#include "shell/Caption.h"

#include <QMenu>
#include <QSystemTrayIcon>
#include <QWidget>

namespace zentaro {

WindowMenus::WindowMenus(Player& player, QWidget& window)
    : m_player(player)
    , m_window(window)
{
    m_player.BothMenus().frmMenu.onChange = [this] { Rebuild(); };
}

WindowMenus::~WindowMenus()
{
    m_player.BothMenus().frmMenu.onChange = nullptr;
}

frmMenu& WindowMenus::Menus()
{
    if (m_menus == nullptr) {
        m_menus = new frmMenu(m_player, &m_window, false);
        m_menus->Menu("mnuPlayListmenu")->addSeparator();
        m_listMenu = new ListMenu(m_player, &m_window);
        m_menus->Menu("mnuPlayListmenu")->addMenu(m_listMenu);
    }
    return *m_menus;
}

void WindowMenus::Rebuild()
{
    if (m_menus != nullptr)
        m_menus->Rebuild();
    if (m_trayMenus)
        m_trayMenus->Rebuild();
}

void WindowMenus::Popup(const std::string& menu, const QPoint& at, bool byKey)
{
    Menus().Popup(menu, at, byKey);
}

void WindowMenus::PopupAbove(const std::string& menu, const QPoint& at)
{
    Menus().PopupAbove(menu, at);
}

void WindowMenus::PopupListMenu(const QPoint& at)
{
    Menus();
    m_listMenu->popup(at);
}

void WindowMenus::ShowTray(bool isWanted)
{
    if (isWanted == (m_tray != nullptr))
        return;
    delete m_tray.data();
    delete m_trayMenus.data();
    if (!isWanted)
        return;
    m_tray = new QSystemTrayIcon(m_window.windowIcon(), &m_window);
    m_tray->setToolTip(kApplicationTitle);
    // The right button opens it as soon as it goes down; the icon has nothing else to say.
    auto* const menu = Menus().Menu("mnuFileMenu");
    m_tray->setContextMenu(menu);
    // Then the desktop shows it, and takes names otherwise than the menus of the window do.
    if (menu->platformMenu() != nullptr) {
        m_trayMenus = new frmMenu(m_player, &m_window, true);
        m_tray->setContextMenu(m_trayMenus->Menu("mnuFileMenu"));
    }
    m_tray->show();
}

} // namespace zentaro
