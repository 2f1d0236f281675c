#pragma once

#include <cstdint>
#include <string>

namespace zentaro::platform {

/// A window's number in the window system; 0 for none.
using NativeWindow = std::uintptr_t;

/// Qt's name for the window system to be used; empty where Qt chooses well by itself. "offscreen" without a display.
/// `wanted`: which one the user has told Qt to use, empty for none. "wayland" needs a plug-in of Qt's that may not be
/// installed.
std::string WindowSystem(const std::string& wanted);

/// Keeps the (shown) window above all others, or no longer. Its place, size and focus stay.
void SetTopmost(NativeWindow window, bool topmost);

/// Draws the user's attention to the window once; it is not brought to the front.
void FlashWindowOnce(NativeWindow window);

/// True when the display that this process draws on is driven by a graphics card. Without one, drawing through OpenGL
/// is far slower than plain copies.
bool HasGraphicsCard();

} // namespace zentaro::platform
