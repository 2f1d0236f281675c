#pragma once

class QMenu;
class QPoint;
class QWidget;

namespace zentaro {

class Player;

/// The menu of the video: what the loaded item offers, full screen, where the list lies; made anew whenever it opens.
QMenu* MakeVideoMenu(QWidget& window, Player& player);
/// Opens one at a place of the screen; asked for by a key, its first entry is chosen.
void ShowVideoMenu(QWidget& window, Player& player, const QPoint& at, bool byKey);

} // namespace zentaro
