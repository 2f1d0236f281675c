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
    /// A tick of the position timer; out of turn where something has happened that it would tell.
    void OnMovie();
    /// Called a moment after changes, for those who need not hear of each.
    std::function<void()> settled = [] {};

private:
    Player& m_player;
    QTimer m_tmrMovie;
    QTimer m_tmrRewind;
    QTimer m_tmrCheckDVD;
    QTimer m_settled;
};

} // namespace zentaro
