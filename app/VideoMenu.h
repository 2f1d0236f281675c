#pragma once

class QPoint;
class QWidget;

namespace zentaro {

class Player;

/// The menu of the video: what the loaded item offers, full screen, where the list lies. `at` is a place of the screen.
void ShowVideoMenu(QWidget& window, Player& player, const QPoint& at);

} // namespace zentaro
