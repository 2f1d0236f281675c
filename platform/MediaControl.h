#pragma once

#include "desktop/MediaStatus.h"

#include <functional>
#include <memory>

namespace zentaro::platform {

using desktop::MediaCommand;
using desktop::MediaLoop;
using desktop::MediaPlayback;
using desktop::MediaStatus;
using desktop::MediaTrack;
using desktop::MediaTracks;

/// The desktop's own controls for whatever plays: media keys, lock screen, headsets. Linux: MPRIS on the session's bus.
/// Windows: none; its media keys reach the window as messages.
class MediaControl {
public:
    virtual ~MediaControl() = default;

    /// The first one brings the player onto the desktop. Returns at once.
    virtual void Publish(MediaStatus status) = 0;

    /// `onCommand` is called on a thread of its own. Null where the system has no such controls.
    static std::unique_ptr<MediaControl> Open(std::function<void(MediaCommand)> onCommand);
};

} // namespace zentaro::platform
