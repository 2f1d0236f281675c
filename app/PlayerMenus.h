#pragma once

class QPoint;
class QWidget;

namespace zentaro {

class Player;

/// The commands by key, wherever the focus is in the window.
void AddShortcuts(QWidget& window, Player& player);

/// The menu of the video: modes, speed, what happens at the end, where the list lies. `at` is a place of the screen.
void ShowPlayMenu(QWidget& window, Player& player, const QPoint& at);

/// The menu of the playlist.
void ShowListMenu(QWidget& window, Player& player, const QPoint& at);

} // namespace zentaro
