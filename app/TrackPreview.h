#pragma once

#include "app/Previews.h"

#include <QObject>

class QWidget;

namespace zentaro {

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

} // namespace zentaro
