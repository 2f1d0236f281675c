#pragma once

#include <QPointer>

#include <string>

class QPoint;
class QSystemTrayIcon;
class QWidget;

namespace zentaro {

class ListMenu;
class Player;
class frmMenu;

/// The menus that pop up over the window, and the tray icon with one of them. They are made when first used.
class WindowMenus {
public:
    WindowMenus(Player& player, QWidget& window);
    ~WindowMenus();
    WindowMenus(const WindowMenus&) = delete;
    WindowMenus& operator=(const WindowMenus&) = delete;

    /// A menu of the classic tree, by its control's name, at a place of the screen.
    void Popup(const std::string& menu, const QPoint& at, bool byKey = false);
    /// It stands on that place.
    void PopupAbove(const std::string& menu, const QPoint& at);
    /// The menu of the list's rows.
    void PopupListMenu(const QPoint& at);
    void ShowTray(bool isWanted);

private:
    frmMenu& Menus();
    void Rebuild();

    Player& m_player;
    QWidget& m_window;
    frmMenu* m_menus = nullptr;
    ListMenu* m_listMenu = nullptr;
    QPointer<frmMenu> m_trayMenus;
    QPointer<QSystemTrayIcon> m_tray;
};

} // namespace zentaro
