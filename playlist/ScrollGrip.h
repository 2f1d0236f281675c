#pragma once

#include "playlist/FancyListLayout.h"
#include "playlist/FancyListPainter.h"

#include <QPoint>

namespace zentaro {

/// The scroll bar of a list under the mouse: its thumb is taken where it is pressed; beside it, its middle jumps to the
/// pointer.
class ScrollGrip {
public:
    explicit ScrollGrip(FancyListLayout& layout)
        : m_layout(layout)
    {
    }

    /// False beside the bar.
    bool Press(const QPoint& at);
    /// Scrolls while the thumb is held.
    void Move(const QPoint& at);
    void Release() { m_grip = -1; }
    bool IsHeld() const { return m_grip >= 0; }
    /// With the pointer there.
    ScrollBarLook Look(const QPoint& at) const;

private:
    bool IsOn(const QPoint& at) const;

    FancyListLayout& m_layout;
    int m_grip = -1; // px below the thumb's top, where it is held
};

} // namespace zentaro
