#pragma once

namespace zentaro::platform {

/// Keeps the system's sound library from writing to the terminal when there is no sound device. Call once, before the
/// first sound.
void SilenceSoundLibrary();

} // namespace zentaro::platform
