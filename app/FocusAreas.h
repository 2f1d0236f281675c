#pragma once

#include <QObject>

class QWidget;

namespace zentaro {

class ContentPane;
class ControlPanel;
class FancyList;
class FullScreenBar;
class VideoFrame;
class WindowFrame;

/// Where the keys are in the window: its parts, and the ways through them in the order of the eye.
class FocusAreas : public QObject {
    Q_OBJECT

public:
    struct Parts {
        WindowFrame& window;
        VideoFrame& video;
        FancyList& list;
        ContentPane& content;
        ControlPanel& controls;
        FullScreenBar& bar;
    };
    /// `parts.window` owns it.
    explicit FocusAreas(const Parts& parts);

    /// To the next part that can be seen (1), or the one before (-1).
    void Step(int direction);
    /// Where the keys go when no control has them: the video, or what is seen in its place.
    void GoHome();
    /// Tab goes through the controls as they lie now.
    void Order();
    /// The keys were brought to the video, which cannot show it itself.
    bool IsVideoMarked() const { return m_isVideoMarked; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Area { Video, List, Controls, TitleButtons };

    QWidget* EntryOf(Area area) const;
    Area AreaOfFocus() const;

    Parts m_parts;
    bool m_isVideoMarked = false;
};

} // namespace zentaro
