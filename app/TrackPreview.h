#pragma once

#include "app/Previews.h"

#include <QObject>

class QWidget;

namespace zentaro {

class FancyList;
class Player;
class PreviewBubble;
class SeekTrack;

/// What is seen over the seek track while the pointer is on it, also where the track lies on the bar of full screen.
class TrackPreview : public QObject {
    Q_OBJECT

public:
    TrackPreview(Player& player, Previews& previews, SeekTrack& track, QWidget* window);

private:
    void Point(double x, double time, const QString& timeText, const QString& chapter);
    void Leave();
    void ShowPicture();
    /// Nothing of what has no pictures, or when the user wants none.
    Previews::Film Film() const;

    Player& m_player;
    Previews& m_previews;
    SeekTrack& m_track;
    QWidget* m_window;
    PreviewBubble* m_bubble;
    bool m_isPointing = false;
};

/// The pointer looks into films, on the track and on the thumbnails of the list. All live as long as their window.
void LetPointerLook(Player& player, Previews& previews, SeekTrack& track, FancyList& list);

} // namespace zentaro
