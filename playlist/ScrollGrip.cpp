#include "playlist/ScrollGrip.h"

namespace zentaro {

bool ScrollGrip::Press(const QPoint& at)
{
    if (!IsOn(at))
        return false;
    const auto thumb = m_layout.ScrollThumb(kScrollBarWidth);
    const bool onThumb = at.y() >= thumb.top && at.y() < thumb.bottom;
    m_grip = onThumb ? at.y() - thumb.top : thumb.Height() / 2;
    Move(at);
    return true;
}

void ScrollGrip::Move(const QPoint& at)
{
    m_layout.SetScrollValue(m_layout.ScrollValueForThumb(at.y() - m_grip));
}

ScrollBarLook ScrollGrip::Look(const QPoint& at) const
{
    if (IsHeld())
        return ScrollBarLook::Press;
    return IsOn(at) ? ScrollBarLook::Over : ScrollBarLook::Normal;
}

bool ScrollGrip::IsOn(const QPoint& at) const
{
    return m_layout.ScrollBarVisible() && at.x() >= m_layout.ScrollBar(kScrollBarWidth).left;
}

} // namespace zentaro
