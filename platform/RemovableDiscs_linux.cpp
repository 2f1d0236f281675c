#include "platform/RemovableDiscs.h"

namespace zentaro::platform {

bool IsOnRemovableDisc(const std::string& path)
{
    // Where desktops mount what is plugged in.
    return path.starts_with("/media/") || path.starts_with("/run/media/");
}

} // namespace zentaro::platform
