#include "shell/Caption.h"

namespace zentaro {

std::string CaptionText(const CaptionState& state)
{
    const std::string name = kProgramName;
    if (state.titleBarMode == 0)
        return name + " - (" + state.title + ")";
    if (state.titleBarMode == 1)
        return name + " - (" + state.fullPath + ")";
    return name;
}

} // namespace zentaro
