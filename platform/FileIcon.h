#pragma once

#include "base/Picture.h"

#include <cstdint>
#include <string>

namespace zentaro::platform {

/// The icon at that place of a program or a library; a negative number is the icon's own number there. No picture when
/// there is none, and on systems whose programs hold no icons.
Picture IconInFile(const std::string& file, std::int32_t index);

} // namespace zentaro::platform
