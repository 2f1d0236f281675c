#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>

#include <map>
#include <memory>
#include <string>

class QAction;
class QMenu;
class QWidget;

namespace zentaro {

class Player;
struct ClassicItem;

/// The classic menus on the screen. There is no window: only its menus are popped up.
class frmMenu : public QObject {
    Q_OBJECT

public:
    /// `forDesktop`: its menus are shown by the desktop, over its protocol.
    frmMenu(Player& player, QWidget* owner, bool forDesktop);

    /// Brings what is shown in line with the tree.
    void Rebuild();

    /// By the control's name; null when it is no menu.
    QMenu* Menu(const std::string& name) const;
    /// `at`: a place on the screen. Returns at once.
    void Popup(const std::string& name, const QPoint& at, bool byKey = false);
    /// Stands on `at`, also when entries come while it is open.
    void PopupAbove(const std::string& name, const QPoint& at);

private:
    void KeepAbove();
    void Show(QAction& action, const ClassicItem& item) const;

    Player& m_player;
    QWidget* m_owner;
    bool m_forDesktop;
    std::map<std::string, QMenu*> m_menus;
    QPointer<QMenu> m_above;
    QPoint m_aboveAt;
    std::map<std::pair<std::string, int>, QAction*> m_actions;
};

} // namespace zentaro
