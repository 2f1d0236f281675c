#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace zentaro {

class Player;

/// The player's clocks. They run only while there is something for them to do: an idle player sleeps.
class PlayerTimers : public QObject {
    Q_OBJECT

public:
    PlayerTimers(Player& player, QObject* parent);

    /// The player's state has changed: starts and stops what follows from it. `settled` of that state is called soon.
    void Follow();
    /// Called a moment after changes, for those who need not hear of each.
    std::function<void()> settled = [] {};

private:
    void OnMovie();

    Player& m_player;
    QTimer m_tmrMovie;
    QTimer m_tmrRewind;
    QTimer m_tmrCheckDVD;
    QTimer m_settled;
};

} // namespace zentaro
