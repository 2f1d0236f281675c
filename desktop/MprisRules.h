#pragma once

#include "desktop/MediaStatus.h"

#include <optional>
#include <string_view>

// How a player's state and MPRIS (org.mpris.MediaPlayer2) translate into each other.
namespace zentaro::desktop {

inline constexpr const char* kMprisRoot = "org.mpris.MediaPlayer2";
inline constexpr const char* kMprisPlayer = "org.mpris.MediaPlayer2.Player";
inline constexpr const char* kMprisTrackList = "org.mpris.MediaPlayer2.TrackList";

std::string_view MprisName(MediaPlayback playback);
std::string_view MprisName(MediaLoop loop);
/// Nothing for a text that is no LoopStatus.
std::optional<MediaLoop> MprisLoop(std::string_view text);

/// The track's object path.
std::string MprisTrackPath(std::uint64_t track);
/// 0 for a path that names no track of ours.
std::uint64_t MprisTrackOf(std::string_view objectPath);

/// The first moment of that year.
std::string MprisDate(int year);

/// "file:" and the absolute path, with everything escaped that needs it.
std::string FileUri(std::string_view path);
/// Nothing for a URI of any other scheme or of another machine.
std::optional<std::string> PathOfFileUri(std::string_view uri);

/// What can be done with the loaded item, or with the list.
bool CanPlay(const MediaStatus& status);
bool CanPause(const MediaStatus& status);
bool CanStep(const MediaStatus& status);
bool CanSeek(const MediaStatus& status);

/// Where the item is at a later moment, in microseconds.
std::int64_t MprisPosition(const MediaStatus& status, std::chrono::steady_clock::time_point now);
/// Whether the item has come to its position by another way than by playing.
bool HasJumped(const MediaStatus& before, const MediaStatus& now);

/// The properties whose values differ, by name.
std::vector<const char*> ChangedRootProperties(const MediaStatus& before, const MediaStatus& now);
std::vector<const char*> ChangedPlayerProperties(const MediaStatus& before, const MediaStatus& now);

/// What has become of the list of tracks.
struct TrackListChange {
    bool replaced = false; ///< more than the rest can tell
    std::vector<std::uint64_t> removed;
    std::size_t addedFrom = 0; ///< the tracks from this index to the end are new
};
TrackListChange ChangeOfTracks(const MediaTracks& before, const MediaTracks& now);

} // namespace zentaro::desktop
