#pragma once

#include "base/Geometry.h"

namespace zentaro::desktop {

/// What lies under the pointer, as far as a system acts on it that frames windows itself.
enum class FramePart { Content, Caption, Menu, Left, TopLeft, Top, TopRight, Right, BottomRight, Bottom, BottomLeft };

/// By which edges of the window a point lies; the caption and the icon of the menu count where no edge does.
FramePart FramePartAt(bool left, bool top, bool right, bool bottom, bool isCaption, bool isIcon);

/// The edges of a monitor at which a taskbar hides.
struct HiddenBars {
    bool left = false;
    bool top = false;
    bool right = false;
    bool bottom = false;
};

/// Where a maximised window lies: all that taskbars leave free, but for a line at an edge where one hides. Without that
/// line the pointer could not call it. `work`: the monitor without the taskbars that are shown, in pixels.
Rect MaximizedArea(const Rect& work, const HiddenBars& hidden);

/// Which items of a window's system menu can be chosen.
struct SystemMenuItems {
    bool restore = false;
    bool move = false;
    bool size = false;
    bool maximize = false;
    bool operator==(const SystemMenuItems&) const = default;
};
SystemMenuItems SystemMenuOf(bool isMaximized, bool isMinimized, bool isFullScreen);

} // namespace zentaro::desktop
