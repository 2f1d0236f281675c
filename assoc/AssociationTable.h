#pragma once

#include "base/Paths.h"

#include <string>

namespace zentaro {

inline constexpr int kAssociationCount = static_cast<int>(kMediaExtensions.size());

/// What a type is called in the association store and in the options list.
struct AssociationRow {
    std::string extension; ///< with its dot
    std::string listText;
    std::string progId;
    std::string description;
    std::string iconFile; ///< below the program folder
};

/// The row of a media extension, 0 to 23 in the order of kMediaExtensions. `separator` is the system's.
AssociationRow AssociationRowAt(int index, char separator);

} // namespace zentaro
