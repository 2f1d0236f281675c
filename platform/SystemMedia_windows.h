#pragma once

#include "desktop/MediaStatus.h"

#include <memory>
#include <windows.h>

namespace zentaro::platform {

/// The system's own media controls: beside the volume, on the lock screen, at headsets and keyboards.
class SystemMedia {
public:
    virtual ~SystemMedia() = default;

    /// Shows what plays; with nothing loaded the controls are left to other players.
    virtual void Show(const desktop::MediaStatus& status) = 0;

    /// What is asked for comes to the window as a message; the first value is one of these, the second what it says.
    enum Asked : WPARAM {
        Button, ///< its number
        Place   ///< where to go: ms
    };

    /// Null where the system has none. On a thread that has come into COM.
    static std::unique_ptr<SystemMedia> Open(HWND window, UINT message);
};

} // namespace zentaro::platform
