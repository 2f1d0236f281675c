#pragma once

#include "base/Result.h"
#include "desktop/FrameRules.h"

#include <cstdint>
#include <functional>
#include <string>

namespace zentaro::platform {

/// A window's number in the window system; 0 for none.
using NativeWindow = std::uintptr_t;

/// What is to be done where Qt cannot show windows on a Wayland display that has no X server beside it.
inline constexpr const char* kNoWaylandPlugin =
    "No window can be shown: the display speaks Wayland, Qt's plug-in for that is missing, and no X server can be "
    "reached. Please install the package qt6-wayland, or xwayland for an X server beside the display.";

/// Qt's name for the window system to be used; empty where Qt chooses well by itself. "offscreen" where no display is
/// named. `wanted`: which one the user has told Qt to use, empty for none. Fails, with what can be done, where a
/// Wayland display is named and neither that nor an X server can be used: Qt itself would abort.
Result<std::string> WindowSystem(const std::string& wanted);

/// What a system that frames windows itself asks about one that is painted up to its edges.
struct FrameFace {
    /// By a point of the client area, in physical pixels.
    std::function<desktop::FramePart(int x, int y)> partAt;
    /// The pointer has come to rest on the caption, where the window does not hear of it.
    std::function<void()> rests;
};

/// Gives a window without a frame, before it is shown, the ways of one that has one: snapping, shaking, shadow, the
/// system's menu, a place beside the taskbar when maximised. The system takes hold of edges and caption from
/// now on. On Linux nothing happens: the window hands each drag to the window manager.
void TakeFrame(NativeWindow window, FrameFace face);

/// How far adding files has come, where the system shows that at the window's button; nothing to show for a total of
/// less than two.
void ShowProgress(NativeWindow window, int done, int total);

/// Keeps the (shown) window above all others, or no longer. Its place, size and focus stay.
void SetTopmost(NativeWindow window, bool topmost);

/// From now on the arrows move the window or its edges, until Enter or Esc: the system does it.
void GrabByKeys(NativeWindow window, bool resizes);

/// Draws the user's attention to the window once; it is not brought to the front.
void FlashWindowOnce(NativeWindow window);

/// True when the display that this process draws on is driven by a graphics card. Without one, drawing through OpenGL
/// is far slower than plain copies.
bool HasGraphicsCard();

} // namespace zentaro::platform
