#pragma once

#include "playlist/AddQueue.h"

#include <QString>
#include <QTimer>

#include <cstdint>

namespace zentaro {

class FancyList;
class Player;
class WindowMenus;

/// The list's widget in the player's hands: it shows the entries and passes on what is done with them.
class ListHand {
public:
    ListHand(Player& player, FancyList& list, WindowMenus& menus);

    /// The player's state may be new.
    void Show();

private:
    void PassOn();
    bool OffersWays() const;
    QString Card() const;
    void TakeCard();
    void ShowRowHeight(bool isCompact);
    void ShowAddProgress();
    /// To those who do not see the mark.
    void TellWhatPlays();

    Player& m_player;
    FancyList& m_list;
    WindowMenus& m_menus;
    QTimer m_progressDelay;
    AddProgress m_progress;
    std::uint64_t m_toldRevision = 0;
    bool m_isCompact = false;
    std::string m_playing; // path of the entry
};

} // namespace zentaro
