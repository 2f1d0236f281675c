#pragma once

#include "playlist/ListFind.h"

#include <QObject>

#include <string>

class QKeyEvent;

namespace zentaro {

class FancyList;
class Player;

/// Typing in the list shows only the entries that have what is typed. Esc shows all again, Enter plays.
class ListSearch : public QObject {
    Q_OBJECT

public:
    ListSearch(Player& player, FancyList& list);

    /// The list has the focus and needs this key for finding.
    bool UsesKey(const QKeyEvent& event) const;
    /// False when the key is none of these.
    bool Press(const QKeyEvent& event);

private:
    bool Type(const QKeyEvent& event);
    void Step(int step);
    void PlayFound();
    void Show();

    Player& m_player;
    FancyList& m_list;
    ListFind m_find;
    std::string m_words;
};

} // namespace zentaro
