#pragma once

#include "app/Player.h"
#include "platform/MediaControl.h"

#include <cstdint>
#include <functional>
#include <string>

namespace zentaro {

/// The player as the desktop's media controls see it and use it.
class MediaRemote {
public:
    struct Window {
        std::function<void()> raise;
        std::function<void()> close;
        std::function<bool()> isFullScreen;
        /// Where the picture has been written as a file for others to read, another one for another picture; empty when
        /// it could not be.
        std::function<std::string(std::uint64_t track, const Picture& picture)> saveArtwork;
        /// The file of the track's cover, larger than its thumbnail; empty where there is none, or not yet.
        std::function<std::string(std::uint64_t track)> coverFile = [](std::uint64_t) { return std::string(); };
    };

    MediaRemote(Player& player, Window window);

    platform::MediaStatus Status();
    void Do(const platform::MediaCommand& command);

private:
    platform::MediaPlayback Playback() const;
    void UpdateTrack();
    void UpdateTracks();
    void Play();
    void SeekBy(double milliseconds);
    void SetPosition(std::uint64_t track, double milliseconds);
    void SetRate(double rate);
    void SetShuffle(bool shuffle);
    void SetFullScreen(bool fullScreen);
    /// Nothing when no entry has the number.
    std::optional<int> IndexOf(std::uint64_t track) const;
    void RemoveTrack(int index);

    Player& m_player;
    Window m_window;
    platform::MediaTrack m_track;
    Picture m_picture; // which m_artwork is the file of
    std::string m_artwork;
    platform::MediaTracks m_tracks;
    std::uint64_t m_revision = 0;
    std::int32_t m_orderedMode = kPlayContinuous; // what the end of shuffle returns to
};

} // namespace zentaro
