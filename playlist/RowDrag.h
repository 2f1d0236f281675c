#pragma once

#include "playlist/FancyListLayout.h"

#include <QPoint>
#include <QTimer>

namespace zentaro {

/// Rows are dragged to another place of their list with the left button; near the edges the list scrolls.
class RowDrag : public QObject {
    Q_OBJECT
public:
    explicit RowDrag(FancyListLayout& layout);

    void Press(const QPoint& at);
    /// The pointer moves with the button held.
    void Move(const QPoint& at);
    /// The row before which the dragged ones are to stand; nothing when nothing was dragged.
    std::optional<int> Release();
    void Cancel();
    bool IsDragging() const { return m_isDragging; }
    /// Where the line between the rows is drawn, in pixels of the surface.
    int LineTop() const;

private:
    int Target() const;
    void ScrollOn();

    FancyListLayout& m_layout;
    QPoint m_pressed;
    QPoint m_at;
    QTimer m_scrolling;
    bool m_isHeld = false;
    bool m_isDragging = false;
};

} // namespace zentaro
