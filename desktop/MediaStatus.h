#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zentaro::desktop {

enum class MediaPlayback { Stopped, Playing, Paused };
enum class MediaLoop { None, Track, Playlist };

/// An entry of the playlist. Its number never names another one.
struct MediaTrack {
    std::uint64_t id = 0; ///< 0: none
    std::string title;
    std::string path;
    std::string artist = {};
    std::string album = {};
    int number = 0; ///< on the album; 0 while unknown
    int year = 0;   ///< as above
    bool isSong = false;
    bool operator==(const MediaTrack&) const = default;
};

using MediaTracks = std::shared_ptr<const std::vector<MediaTrack>>;

/// What the desktop is told about the player.
struct MediaStatus {
    MediaPlayback playback = MediaPlayback::Stopped;
    MediaLoop loop = MediaLoop::None;
    bool shuffle = false;
    double rate = 1;   ///< 1.0 is normal speed
    double volume = 1; ///< 0.0 to 1.0
    bool fullScreen = false;
    MediaTrack track;    ///< the loaded item
    std::string artwork; ///< its picture's path; empty: none
    double length = 0;   ///< ms; 0 while unknown
    double position = 0; ///< ms, at the moment `readAt`
    std::chrono::steady_clock::time_point readAt;
    MediaTracks tracks;             ///< null: none
    std::vector<MediaTrack> recent; ///< the recently played files, with no numbers
};

/// What the desktop wants of the player.
struct MediaCommand {
    enum class Kind {
        Play,
        Pause,
        PlayPause,
        Stop,
        Next,
        Previous,
        SeekBy,      ///< number: ms, back when below 0
        SetPosition, ///< number: ms from the start; track: for this one only
        SetRate,     ///< number
        SetVolume,   ///< number: 0.0 to 1.0, and anything else
        SetLoop,
        SetShuffle,    ///< flag
        SetFullScreen, ///< flag
        OpenFile,      ///< path
        AddFile,       ///< path; flag: play it
        RemoveTrack,   ///< track
        GoToTrack,     ///< track
        Raise,
        Quit,
    };
    Kind kind = Kind::Play;
    double number = 0;
    bool flag = false;
    MediaLoop loop = MediaLoop::None;
    std::uint64_t track = 0;
    std::string path = {};
    bool operator==(const MediaCommand&) const = default;
};

} // namespace zentaro::desktop
