#include "platform/EngineLibrary.h"

namespace zentaro::platform {

Result<void> LoadEngineLibrary()
{
    return {};
}

} // namespace zentaro::platform
