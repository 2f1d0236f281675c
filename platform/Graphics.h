#pragma once

namespace zentaro::platform {

/// True when the display that this process draws on is driven by a graphics card. Without one, drawing through OpenGL
/// is far slower than plain copies.
bool HasGraphicsCard();

} // namespace zentaro::platform
