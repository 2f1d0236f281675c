#include "app/WindowMenus.h"

#include "app/ListMenu.h"
#include "app/frmMenu.h"
#include "shell/Caption.h"

#include <QSystemTrayIcon>
#include <QWidget>

namespace zentaro {

WindowMenus::WindowMenus(Player& player, QWidget& window)
    : m_player(player)
    , m_window(window)
{
}

frmMenu& WindowMenus::Menus()
{
    if (m_menus == nullptr) {
        m_menus = new frmMenu(m_player, &m_window);
        m_menus->Menu("mnuPlayListmenu")->addSeparator();
        m_listMenu = new ListMenu(m_player, &m_window);
        m_menus->Menu("mnuPlayListmenu")->addMenu(m_listMenu);
    }
    return *m_menus;
}

void WindowMenus::Popup(const std::string& menu, const QPoint& at)
{
    Menus().Popup(menu, at);
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
    if (!isWanted)
        return;
    m_tray = new QSystemTrayIcon(m_window.windowIcon(), &m_window);
    m_tray->setToolTip(kApplicationTitle);
    // The right button opens it as soon as it goes down; the icon has nothing else to say.
    m_tray->setContextMenu(Menus().Menu("mnuFileMenu"));
    m_tray->show();
}

} // namespace zentaro
