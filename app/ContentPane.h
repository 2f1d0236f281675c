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

    /// Takes this place and puts the list where it is docked; while the window is filled with the video, and where
    /// there is no room for both, there is no list.
    void Arrange(PlaylistDock dock, bool isFilled, const QRect& place);
    /// Tab goes through the two as they lie; the last of them.
    QWidget* OrderFocus();

protected:
    QSplitterHandle* createHandle() override;

private:
    QWidget& m_video;
    QWidget& m_list;
    PlaylistDock m_splitFor = PlaylistDock::Hidden; // the docking that the splitter stands for
    bool m_isSplitByHand = false;
};

} // namespace zentaro
