#pragma once

#include "base/Picture.h"

#include <string>

namespace zentaro {

/// The icon in a picture file, or of that name in the icon theme, about `side` px large; no picture when it cannot be
/// read. On the UI thread only.
Picture LoadIconPicture(const std::string& file, int side);

} // namespace zentaro
