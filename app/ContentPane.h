#pragma once

#include "shell/WindowLayout.h"

#include <QSplitter>

namespace zentaro {

/// The video and the list beside it, with a splitter between them.
class ContentPane : public QSplitter {
    Q_OBJECT

public:
    /// Takes both over.
    ContentPane(QWidget& video, QWidget& list, QWidget* parent);

    /// Puts the list where it is docked; while the window is filled with the video there is no list.
    void Arrange(PlaylistDock dock, bool isFilled);
    void SetPlace(const QRect& place);

private:
    /// The list has its usual share until the splitter is moved.
    void Share();

    QWidget& m_video;
    QWidget& m_list;
    PlaylistDock m_splitFor = PlaylistDock::Hidden; // the docking that the splitter stands for
    bool m_isShared = false;
    bool m_isSplitByHand = false;
};

} // namespace zentaro
