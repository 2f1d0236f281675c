#pragma once

#include "shell/ClassicTree.h"

namespace zentaro {

class Player;

/// An item of the classic tree was clicked. Menus, separators and placeholders do nothing.
void ClickClassicItem(Player& player, const ClassicItem& item);

/// A menu of the classic tree is about to be shown: brings its items in line with the player.
void OpenClassicMenu(Player& player, std::string_view menu);

} // namespace zentaro
