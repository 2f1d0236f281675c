#pragma once

#include <QMenu>

#include <utility>
#include <vector>

namespace zentaro {

class Player;
struct Command;

/// What can be done with the list and its entries beside the two trees: a submenu at the end of their menus for the
/// list, and a menu of its own.
class ListMenu : public QMenu {
    Q_OBJECT

public:
    ListMenu(Player& player, QWidget* parent);

private:
    void Add(QMenu& menu, const Command& command);
    void Show();

    Player& m_player;
    std::vector<std::pair<QAction*, const Command*>> m_actions;
};

} // namespace zentaro
