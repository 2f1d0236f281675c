#pragma once

#include <QMenu>

namespace zentaro {

class Player;

/// What can be done with the list and its entries beside the two trees: a submenu at the end of their menus for the
/// list, and a menu of its own.
class ListMenu : public QMenu {
    Q_OBJECT

public:
    ListMenu(Player& player, QWidget* parent);

private:
    void Show();

    Player& m_player;
};

} // namespace zentaro
