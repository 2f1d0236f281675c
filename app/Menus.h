#pragma once

#include "app/ClassicTree.h"
#include "app/CommandTree.h"

namespace zentaro {

/// Both menu trees: what their items are called, and which are enabled, checked and shown.
struct Menus {
    CommandTree SmartMenuXP1;
    ClassicTree frmMenu;
};

} // namespace zentaro
