#pragma once

#include "base/Result.h"

namespace zentaro::platform {

/// Makes the engine's library ready for its first call, which must not come earlier. Fails, with what the user can do,
/// where it is missing. On Linux the program is linked with it and would not have started.
Result<void> LoadEngineLibrary();

} // namespace zentaro::platform
