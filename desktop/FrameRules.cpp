#include "desktop/FrameRules.h"

namespace zentaro::desktop {

namespace {

constexpr int kCallingLine = 2; // px

} // namespace

FramePart FramePartAt(bool left, bool top, bool right, bool bottom, bool isCaption, bool isIcon)
{
    if (top)
        return left ? FramePart::TopLeft : right ? FramePart::TopRight : FramePart::Top;
    if (bottom)
        return left ? FramePart::BottomLeft : right ? FramePart::BottomRight : FramePart::Bottom;
    if (left || right)
        return left ? FramePart::Left : FramePart::Right;
    if (isIcon)
        return FramePart::Menu;
    return isCaption ? FramePart::Caption : FramePart::Content;
}

Rect MaximizedArea(const Rect& work, const HiddenBars& hidden)
{
    const int left = hidden.left ? kCallingLine : 0;
    const int top = hidden.top ? kCallingLine : 0;
    return { work.left + left, work.top + top, work.width - left - (hidden.right ? kCallingLine : 0),
        work.height - top - (hidden.bottom ? kCallingLine : 0) };
}

SystemMenuItems SystemMenuOf(bool isMaximized, bool isMinimized, bool isFullScreen)
{
    const bool isPlain = !isMaximized && !isMinimized && !isFullScreen;
    return { isMaximized || isMinimized, isPlain, isPlain, !isMaximized && !isFullScreen };
}

} // namespace zentaro::desktop
