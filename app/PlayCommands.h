#pragma once

#include "app/Commands.h"

namespace zentaro {

/// What can be done with what plays beside the two trees. Part of AllCommands().
std::span<const Command> PlayCommands();

} // namespace zentaro
