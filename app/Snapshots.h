#pragma once

#include "app/PlayerFace.h"
#include "app/SettingsStore.h"
#include "playback/Transport.h"

namespace zentaro {

/// Only a video can be photographed.
inline bool CanTakeSnapshot(const Transport& transport)
{
    return transport.State().mediaControlsEnabled && transport.State().hasVideoOutput;
}

/// Saves the present picture of the video in the item's snapshot folder and says so. Nothing without a video.
void TakeSnapshot(Transport& transport, const SettingsStore& settings, WindowFace& window, char separator);

} // namespace zentaro
