#pragma once

#include "shell/WindowLayout.h"

#include <QSplitter>
#include <QTimer>

class QMouseEvent;

namespace zentaro {

class OwnSettings;
class VideoFrame;

/// The video and the list beside it, with a splitter between them, whose place is kept. The splitter is narrow; it can
/// be taken hold of on the video's edge, too, where nothing else is pressed.
class ContentPane : public QSplitter {
    Q_OBJECT

public:
    /// Takes both over.
    ContentPane(VideoFrame& video, QWidget& list, OwnSettings& settings, QWidget* parent);

    /// Takes this place and puts the list where it is docked; while the window is filled with the video, and where
    /// there is no room for both, there is no list.
    void Arrange(PlaylistDock dock, bool isFilled, const QRect& place);
    /// Tab goes through the two as they lie; the last of them.
    QWidget* OrderFocus();

protected:
    QSplitterHandle* createHandle() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool MouseOverVideo(const QMouseEvent& mouse);
    bool IsInReach(const QMouseEvent& event) const;
    /// Passes it on to the splitter.
    bool Grip(const QMouseEvent& event);

    void SplitterMoved();
    int Room() const;
    int ListShare(const PaneShare& share) const;

    VideoFrame& m_video;
    QWidget& m_list;
    OwnSettings& m_settings;
    QTimer m_saveDelay;                             // a drag moves the splitter at every pixel
    PlaylistDock m_splitFor = PlaylistDock::Hidden; // the docking that the splitter stands for
    bool m_isSplitByHand = false;
    bool m_isGripped = false; // on the video's edge
};

} // namespace zentaro
