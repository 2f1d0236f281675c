#pragma once

#include <QObject>

#include <map>
#include <string>
#include <vector>

class QAction;
class QMenu;
class QWidget;

namespace zentaro {

class Player;
struct CommandItem;

/// The command tree on the screen: its menus, and its keys wherever the focus is in the window. What is shown follows
/// the tree, also while a menu is open.
class CommandMenu : public QObject {
    Q_OBJECT

public:
    /// `window` owns the menus and has the keys.
    CommandMenu(Player& player, QWidget* window);
    ~CommandMenu() override;

    /// One for each item at the top, in order.
    const std::vector<QMenu*>& TopMenus() const { return m_top; }
    /// The menu of an item that has one below it.
    QMenu* Menu(const std::string& key) const { return m_menus.at(key); }

private:
    void Make(const CommandItem& item);
    QAction* MakeItem(const CommandItem& item);
    void Show(const CommandItem& item);
    void ShowKeys();

    Player& m_player;
    QWidget* m_window;
    std::map<std::string, QMenu*> m_menus;
    std::map<std::string, QAction*> m_actions;
    std::vector<QMenu*> m_top;
};

} // namespace zentaro
