#pragma once

#include "desktop/MediaStatus.h"
#include "platform/Window.h"

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
/// Windows: the system's media controls, or the media keys alone where it has none, the buttons at the window's taskbar
/// button, and the recently played files there.
class MediaControl {
public:
    virtual ~MediaControl() = default;

    /// The first one brings the player onto the desktop. Returns at once.
    virtual void Publish(MediaStatus status) = 0;

    /// `onCommand` is called on any thread. `window`: the main one, which stays as long as this.
    static std::unique_ptr<MediaControl> Open(std::function<void(MediaCommand)> onCommand, NativeWindow window);
};

} // namespace zentaro::platform
