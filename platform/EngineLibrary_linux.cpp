#include "platform/EngineLibrary.h"

namespace zentaro::platform {

Result<void> LoadEngineLibrary()
{
    return {};
}

std::optional<PluginList> OwnPluginList()
{
    return {};
}

} // namespace zentaro::platform
