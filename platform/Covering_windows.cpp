#include "platform/Covering.h"

namespace zentaro::platform {

std::unique_ptr<Covering> Covering::Watch(NativeWindow, std::function<void(bool)>)
{
    return nullptr;
}

} // namespace zentaro::platform
