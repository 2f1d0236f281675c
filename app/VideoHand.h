#pragma once

#include <QObject>

namespace zentaro {

class FullScreenBar;
class Player;
class VideoFrame;
class WindowNotes;

/// What the pointer does on the video, and files that are dropped on the window.
class VideoHand : public QObject {
    Q_OBJECT

public:
    VideoHand(Player& player, VideoFrame& video, FullScreenBar& bar, WindowNotes& notes, QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Pointer(QEvent& event);
    bool Drop(QEvent& event);

    Player& m_player;
    VideoFrame& m_video;
    FullScreenBar& m_bar;
    WindowNotes& m_notes;
    QWidget& m_window;
};

} // namespace zentaro
