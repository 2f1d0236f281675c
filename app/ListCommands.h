#pragma once

#include "app/Commands.h"

namespace zentaro {

/// What can be done with the list and its entries beside the two trees. Part of AllCommands().
std::span<const Command> ListCommands();

} // namespace zentaro
