#include "platform/MediaControl.h"

namespace zentaro::platform {

std::unique_ptr<MediaControl> MediaControl::Open(std::function<void(MediaCommand)>)
{
    return nullptr;
}

} // namespace zentaro::platform
