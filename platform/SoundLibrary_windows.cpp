#include "platform/SoundLibrary.h"

namespace zentaro::platform {

// The system's sound functions report by return value only.
void SilenceSoundLibrary() { }

} // namespace zentaro::platform
