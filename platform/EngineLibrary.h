#pragma once

#include "base/Result.h"

#include <cstdint>
#include <optional>
#include <string>

namespace zentaro::platform {

/// Makes the engine's library ready for its first call, which must not come earlier. Fails, with what the user can do,
/// where it is missing. On Linux the program is linked with it and would not have started.
Result<void> LoadEngineLibrary();

struct PluginList {
    std::string path;
    std::int64_t changed = 0; ///< when one of the plug-ins was, in seconds since 1970, as the library notes it there
};

/// The library's list of its plug-ins when that is ours to see to, because the library lies beside the program; it need
/// not be there. Else none, as where packages of the system make it. After LoadEngineLibrary().
std::optional<PluginList> OwnPluginList();

} // namespace zentaro::platform
