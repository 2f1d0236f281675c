#pragma once

#include "app/Previews.h"
#include "base/Picture.h"

#include <QObject>

namespace zentaro {

class FancyList;
class Player;

/// The pointer on a row's thumbnail goes through its film.
class ThumbScrub : public QObject {
    Q_OBJECT

public:
    ThumbScrub(Player& player, Previews& previews, FancyList& list);

private:
    void Point(int row, double share);
    void Leave();
    void ShowPicture();

    Player& m_player;
    Previews& m_previews;
    FancyList& m_list;
    int m_row = -1; // below 0: nowhere
    double m_share = 0;
    PreviewBytes m_bytes; // of m_picture
    Picture m_picture;
};

} // namespace zentaro
