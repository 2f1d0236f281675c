#pragma once

#include "platform/Bus_linux.h"
#include "platform/MediaControl.h"

#include <memory>
#include <mutex>
#include <string>

namespace zentaro::platform {

/// The player as "org.mpris.MediaPlayer2.zentaro" on a session's bus; a second player adds ".instance" and its process
/// number.
class MprisControl : public MediaControl, private BusClient {
public:
    MprisControl(std::string busAddress, std::function<void(MediaCommand)> onCommand,
        std::chrono::milliseconds retry = kBusRetry); ///< after a bus that was lost
    ~MprisControl() override;

    void Publish(MediaStatus status) override;

    /// For the answers on the bus: what was published last, on the bus's thread.
    const MediaStatus& Shown() const { return m_shown; }
    /// Null when there is no such track.
    const MediaTrack* TrackWith(std::uint64_t id) const;
    void Command(MediaCommand command) const { m_onCommand(std::move(command)); }

private:
    void Connected(sd_bus* bus) override;
    void Speak(sd_bus* bus) override;
    void Lost() override { }
    void AnnounceTracks(sd_bus* bus, const MediaStatus& before) const;
    static int OnNameAnswer(sd_bus_message* answer, void* control, sd_bus_error*);

    std::string m_busAddress;
    std::function<void(MediaCommand)> m_onCommand;
    std::chrono::milliseconds m_retry;
    std::mutex m_mutex;
    MediaStatus m_next;  // guarded by the mutex
    MediaStatus m_shown; // only for the bus's thread
    std::unique_ptr<BusThread> m_thread;
};

/// What the bus may ask of the object and tell it, by interface; the user data is an MprisControl.
extern const sd_bus_vtable kMprisRootTable[];
extern const sd_bus_vtable kMprisPlayerTable[];
extern const sd_bus_vtable kMprisTrackListTable[];

inline constexpr double kMprisMicroseconds = 1000; ///< in a millisecond
/// Parts of answers and signals. Below 0 when the message does not take them.
int AppendMetadata(sd_bus_message* message, const MediaTrack& track, const MediaStatus& status);
int AppendTrackPaths(sd_bus_message* message, const MediaTracks& tracks);
std::string MprisTrackPathOrNone(std::uint64_t track);

} // namespace zentaro::platform
