#include "desktop/MprisRules.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace zentaro::desktop {

namespace {

constexpr std::string_view kTrackPath = "/org/zentaro/track/";
constexpr std::array<std::string_view, 3> kPlaybackNames{ "Stopped", "Playing", "Paused" };
constexpr std::array<std::string_view, 3> kLoopNames{ "None", "Track", "Playlist" };
constexpr double kJump = 1000;             // ms; the engine's clock moves in steps
constexpr std::size_t kTracksOneByOne = 8; // more at once are told as a new list
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

bool IsPlainInUri(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z')
        || (character >= '0' && character <= '9')
        || std::string_view("-._~/!$&'()*+,;=:@").find(character) != std::string_view::npos;
}

std::optional<std::string> WithoutEscapes(std::string_view text)
{
    // No path holds a zero byte, escaped or not.
    if (text.find('\0') != std::string_view::npos)
        return std::nullopt;
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '%') {
            result += text[at];
            continue;
        }
        unsigned value = 0;
        const auto digits = text.substr(at + 1, 2);
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
        if (digits.size() != 2 || error != std::errc() || end != digits.data() + 2 || value == 0)
            return std::nullopt;
        result += static_cast<char>(value);
        at += 2;
    }
    return result;
}

double PositionAt(const MediaStatus& status, std::chrono::steady_clock::time_point now)
{
    const std::chrono::duration<double, std::milli> passed = now - status.readAt;
    const auto moved = status.playback == MediaPlayback::Playing ? passed.count() * status.rate : 0.0;
    const auto position = std::max(status.position + moved, 0.0);
    return status.length > 0 ? std::min(position, status.length) : position;
}

std::size_t CountOf(const MediaTracks& tracks)
{
    return tracks ? tracks->size() : 0;
}

} // namespace

std::string_view MprisName(MediaPlayback playback)
{
    return kPlaybackNames[static_cast<std::size_t>(playback)];
}

std::string_view MprisName(MediaLoop loop)
{
    return kLoopNames[static_cast<std::size_t>(loop)];
}

std::optional<MediaLoop> MprisLoop(std::string_view text)
{
    const auto at = std::find(kLoopNames.begin(), kLoopNames.end(), text);
    return at == kLoopNames.end() ? std::nullopt : std::optional(static_cast<MediaLoop>(at - kLoopNames.begin()));
}

std::string MprisTrackPath(std::uint64_t track)
{
    return std::string(kTrackPath) + std::to_string(track);
}

std::uint64_t MprisTrackOf(std::string_view objectPath)
{
    if (!objectPath.starts_with(kTrackPath))
        return 0;
    const auto digits = objectPath.substr(kTrackPath.size());
    std::uint64_t track = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), track);
    return error == std::errc() && end == digits.data() + digits.size() ? track : 0;
}

std::string MprisDate(int year)
{
    auto digits = std::to_string(year);
    digits.insert(0, digits.size() < 4 ? 4 - digits.size() : 0, '0');
    return digits + "-01-01T00:00:00Z";
}

std::string FileUri(std::string_view path)
{
    std::string uri = "file://";
    for (const char character : path) {
        if (IsPlainInUri(character)) {
            uri += character;
        } else {
            const auto value = static_cast<unsigned char>(character);
            uri += { '%', kHexDigits[value / 16U], kHexDigits[value % 16U] };
        }
    }
    return uri;
}

std::optional<std::string> PathOfFileUri(std::string_view uri)
{
    constexpr std::string_view scheme = "file://";
    constexpr std::string_view localhost = "localhost";
    if (!uri.starts_with(scheme))
        return std::nullopt;
    uri.remove_prefix(scheme.size());
    if (uri.starts_with(localhost))
        uri.remove_prefix(localhost.size());
    return uri.starts_with('/') ? WithoutEscapes(uri) : std::nullopt;
}

bool CanPlay(const MediaStatus& status)
{
    return status.playback != MediaPlayback::Stopped || CountOf(status.tracks) > 0;
}

bool CanPause(const MediaStatus& status)
{
    return CanPlay(status);
}

bool CanStep(const MediaStatus& status)
{
    return status.playback != MediaPlayback::Stopped && CountOf(status.tracks) > 0;
}

bool CanSeek(const MediaStatus& status)
{
    return status.playback != MediaPlayback::Stopped && status.length > 0;
}

std::int64_t MprisPosition(const MediaStatus& status, std::chrono::steady_clock::time_point now)
{
    return static_cast<std::int64_t>(PositionAt(status, now) * 1000);
}

bool HasJumped(const MediaStatus& before, const MediaStatus& now)
{
    if (before.track.id == 0 || before.track.id != now.track.id)
        return false;
    const auto far = kJump * std::max(1.0, now.rate);
    return std::abs(now.position - PositionAt(before, now.readAt)) > far;
}

std::vector<const char*> ChangedRootProperties(const MediaStatus& before, const MediaStatus& now)
{
    return before.fullScreen != now.fullScreen ? std::vector{ "Fullscreen" } : std::vector<const char*>{};
}

std::vector<const char*> ChangedPlayerProperties(const MediaStatus& before, const MediaStatus& now)
{
    std::vector<const char*> changed;
    const auto compare = [&](const char* name, const auto& value) {
        if (value(before) != value(now))
            changed.push_back(name);
    };
    compare("PlaybackStatus", [](const MediaStatus& status) { return status.playback; });
    compare("LoopStatus", [](const MediaStatus& status) { return status.loop; });
    compare("Rate", [](const MediaStatus& status) { return status.rate; });
    compare("Shuffle", [](const MediaStatus& status) { return status.shuffle; });
    compare("Volume", [](const MediaStatus& status) { return status.volume; });
    if (before.track != now.track || before.artwork != now.artwork || before.length != now.length)
        changed.push_back("Metadata");
    compare("CanGoNext", &CanStep);
    compare("CanGoPrevious", &CanStep);
    compare("CanPlay", &CanPlay);
    compare("CanPause", &CanPause);
    compare("CanSeek", &CanSeek);
    return changed;
}

TrackListChange ChangeOfTracks(const MediaTracks& before, const MediaTracks& now)
{
    TrackListChange change;
    if (before == now)
        return { false, {}, CountOf(now) };
    // What is left of the old list keeps its order: one walk finds what is gone.
    std::size_t kept = 0;
    for (std::size_t i = 0; i < CountOf(before); ++i) {
        if (kept < CountOf(now) && (*now)[kept].id == (*before)[i].id)
            ++kept;
        else
            change.removed.push_back((*before)[i].id);
    }
    change.addedFrom = kept;
    change.replaced = change.removed.size() + CountOf(now) - kept > kTracksOneByOne;
    return change;
}

} // namespace zentaro::desktop
