#include "platform/FileSelections.h"

namespace zentaro::platform {

std::optional<FileSelection> TakeSelection()
{
    return std::nullopt;
}

} // namespace zentaro::platform
