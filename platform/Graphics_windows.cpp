#include "platform/Graphics.h"

namespace zentaro::platform {

// Direct3D brings a software renderer of its own and chooses by itself.
bool HasGraphicsCard()
{
    return true;
}

} // namespace zentaro::platform
