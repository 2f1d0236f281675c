#include "platform/MediaControl_linux.h"

#include "base/Paths.h"
#include "desktop/DesktopEntry.h"
#include "desktop/MprisRules.h"

#include <QString>

#include <cmath>
#include <set>
#include <utility>

namespace zentaro::platform {

using namespace desktop;

namespace {

using Kind = MediaCommand::Kind;
using Clock = std::chrono::steady_clock;

constexpr const char* kNoTrack = "/org/mpris/MediaPlayer2/TrackList/NoTrack";
constexpr double kSlowest = 0.125;
constexpr double kFastest = 16;

MprisControl& ControlOf(void* data)
{
    return *static_cast<MprisControl*>(data);
}

const MediaStatus& StatusOf(void* data)
{
    return ControlOf(data).Shown();
}

/// A file's name may hold any bytes; the bus takes UTF-8 alone.
std::string BusText(const std::string& text)
{
    return QString::fromStdString(text).toStdString();
}

int AppendEntry(sd_bus_message* message, const char* key, const char* type, auto value)
{
    return sd_bus_message_append(message, "{sv}", key, type, value);
}

/// For what can have several.
int AppendEntryOfTexts(sd_bus_message* message, const char* key, const std::string& text)
{
    return sd_bus_message_append(message, "{sv}", key, "as", 1, text.c_str());
}

} // namespace

int AppendMetadata(sd_bus_message* message, const MediaTrack& track, const MediaStatus& status)
{
    int result = sd_bus_message_open_container(message, 'a', "{sv}");
    if (result < 0)
        return result;
    if (track.id != 0) {
        AppendEntry(message, "mpris:trackid", "o", MprisTrackPath(track.id).c_str());
        AppendEntry(message, "xesam:title", "s", BusText(track.title).c_str());
        if (!track.artist.empty())
            AppendEntryOfTexts(message, "xesam:artist", BusText(track.artist));
        if (!track.album.empty())
            AppendEntry(message, "xesam:album", "s", BusText(track.album).c_str());
        if (track.number > 0)
            AppendEntry(message, "xesam:trackNumber", "i", static_cast<std::int32_t>(track.number));
        if (track.year > 0)
            AppendEntry(message, "xesam:contentCreated", "s", MprisDate(track.year).c_str());
        // A disc has a location that nobody else could open.
        if (track.path.starts_with('/'))
            AppendEntry(message, "xesam:url", "s", FileUri(track.path).c_str());
        const bool isLoaded = track.id == status.track.id;
        if (isLoaded && status.length > 0)
            AppendEntry(message, "mpris:length", "x", static_cast<std::int64_t>(status.length * kMprisMicroseconds));
        if (isLoaded && !status.artwork.empty())
            AppendEntry(message, "mpris:artUrl", "s", FileUri(status.artwork).c_str());
    }
    return sd_bus_message_close_container(message);
}

int AppendTrackPaths(sd_bus_message* message, const MediaTracks& tracks)
{
    const int result = sd_bus_message_open_container(message, 'a', "o");
    if (result < 0)
        return result;
    if (tracks)
        for (const auto& track : *tracks)
            sd_bus_message_append(message, "o", MprisTrackPath(track.id).c_str());
    return sd_bus_message_close_container(message);
}

std::string MprisTrackPathOrNone(std::uint64_t track)
{
    return track != 0 ? MprisTrackPath(track) : kNoTrack;
}

namespace {

int Answer(sd_bus_message* call)
{
    return sd_bus_reply_method_return(call, "");
}

template <Kind kind> int OnVerb(sd_bus_message* call, void* data, sd_bus_error*)
{
    ControlOf(data).Command({ .kind = kind });
    return Answer(call);
}

int OnSeek(sd_bus_message* call, void* data, sd_bus_error*)
{
    std::int64_t offset = 0;
    if (const int result = sd_bus_message_read(call, "x", &offset); result < 0)
        return result;
    ControlOf(data).Command({ .kind = Kind::SeekBy, .number = static_cast<double>(offset) / kMprisMicroseconds });
    return Answer(call);
}

int OnSetPosition(sd_bus_message* call, void* data, sd_bus_error*)
{
    const char* track = nullptr;
    std::int64_t position = 0;
    if (const int result = sd_bus_message_read(call, "ox", &track, &position); result < 0)
        return result;
    ControlOf(data).Command({ .kind = Kind::SetPosition,
        .number = static_cast<double>(position) / kMprisMicroseconds,
        .track = MprisTrackOf(track) });
    return Answer(call);
}

int RefuseUri(sd_bus_error* error)
{
    return sd_bus_error_set_const(error, SD_BUS_ERROR_INVALID_ARGS, "Only files of this computer can be opened");
}

int OnOpenUri(sd_bus_message* call, void* data, sd_bus_error* error)
{
    const char* uri = nullptr;
    if (const int result = sd_bus_message_read(call, "s", &uri); result < 0)
        return result;
    auto path = PathOfFileUri(uri);
    if (!path)
        return RefuseUri(error);
    ControlOf(data).Command({ .kind = Kind::OpenFile, .path = std::move(*path) });
    return Answer(call);
}

int OnAddTrack(sd_bus_message* call, void* data, sd_bus_error* error)
{
    const char* uri = nullptr;
    const char* after = nullptr;
    int isToPlay = 0;
    if (const int result = sd_bus_message_read(call, "sob", &uri, &after, &isToPlay); result < 0)
        return result;
    auto path = PathOfFileUri(uri);
    if (!path)
        return RefuseUri(error);
    // Files join the list at its end, whatever they were to follow.
    ControlOf(data).Command({ .kind = Kind::AddFile, .flag = isToPlay != 0, .path = std::move(*path) });
    return Answer(call);
}

template <Kind kind> int OnTrackVerb(sd_bus_message* call, void* data, sd_bus_error*)
{
    const char* track = nullptr;
    if (const int result = sd_bus_message_read(call, "o", &track); result < 0)
        return result;
    ControlOf(data).Command({ .kind = kind, .track = MprisTrackOf(track) });
    return Answer(call);
}

int OnGetTracksMetadata(sd_bus_message* call, void* data, sd_bus_error*)
{
    sd_bus_message* answer = nullptr;
    if (int result = sd_bus_message_enter_container(call, 'a', "o"); result < 0)
        return result;
    if (int result = sd_bus_message_new_method_return(call, &answer); result < 0)
        return result;
    sd_bus_message_open_container(answer, 'a', "a{sv}");
    const char* path = nullptr;
    while (sd_bus_message_read(call, "o", &path) > 0)
        if (const auto* const track = ControlOf(data).TrackWith(MprisTrackOf(path)))
            AppendMetadata(answer, *track, StatusOf(data));
    sd_bus_message_close_container(answer);
    const int result = sd_bus_send(nullptr, answer, nullptr);
    sd_bus_message_unref(answer);
    return result;
}

// The properties of all three interfaces: each is read from the status, and a few are written by a command.
using Read = int (*)(sd_bus_message* reply, const MediaStatus& status);
using Write = int (*)(sd_bus_message* value, const MprisControl& control, sd_bus_error* error);

template <Read read>
int Get(sd_bus*, const char*, const char*, const char*, sd_bus_message* reply, void* data, sd_bus_error*)
{
    return read(reply, StatusOf(data));
}

template <Write write>
int Set(sd_bus*, const char*, const char*, const char*, sd_bus_message* value, void* data, sd_bus_error* error)
{
    return write(value, ControlOf(data), error);
}

template <bool (*is)(const MediaStatus&)> int ReadFlag(sd_bus_message* reply, const MediaStatus& status)
{
    return sd_bus_message_append(reply, "b", static_cast<int>(is(status)));
}

template <double MediaStatus::*number> int ReadNumber(sd_bus_message* reply, const MediaStatus& status)
{
    return sd_bus_message_append(reply, "d", status.*number);
}

int ReadIdentity(sd_bus_message* reply, const MediaStatus&)
{
    return sd_bus_message_append(reply, "s", "Zentaro");
}

int ReadDesktopEntry(sd_bus_message* reply, const MediaStatus&)
{
    return sd_bus_message_append(reply, "s", "zentaro");
}

int ReadUriSchemes(sd_bus_message* reply, const MediaStatus&)
{
    return sd_bus_message_append(reply, "as", 1, "file");
}

int ReadMimeTypes(sd_bus_message* reply, const MediaStatus&)
{
    std::set<std::string> types;
    for (const auto extension : kMediaExtensions)
        for (auto& type : MimeTypesOf("." + std::string(extension)))
            types.insert(std::move(type));
    const int result = sd_bus_message_open_container(reply, 'a', "s");
    if (result < 0)
        return result;
    for (const auto& type : types)
        sd_bus_message_append(reply, "s", type.c_str());
    return sd_bus_message_close_container(reply);
}

int ReadPlayback(sd_bus_message* reply, const MediaStatus& status)
{
    return sd_bus_message_append(reply, "s", MprisName(status.playback).data());
}

int ReadLoop(sd_bus_message* reply, const MediaStatus& status)
{
    return sd_bus_message_append(reply, "s", MprisName(status.loop).data());
}

int ReadSlowest(sd_bus_message* reply, const MediaStatus&)
{
    return sd_bus_message_append(reply, "d", kSlowest);
}

int ReadFastest(sd_bus_message* reply, const MediaStatus&)
{
    return sd_bus_message_append(reply, "d", kFastest);
}

int ReadPosition(sd_bus_message* reply, const MediaStatus& status)
{
    return sd_bus_message_append(reply, "x", MprisPosition(status, Clock::now()));
}

int ReadMetadata(sd_bus_message* reply, const MediaStatus& status)
{
    return AppendMetadata(reply, status.track, status);
}

int ReadTracks(sd_bus_message* reply, const MediaStatus& status)
{
    return AppendTrackPaths(reply, status.tracks);
}

template <Kind kind> int WriteFlag(sd_bus_message* value, const MprisControl& control, sd_bus_error*)
{
    int flag = 0;
    const int result = sd_bus_message_read(value, "b", &flag);
    if (result >= 0)
        control.Command({ .kind = kind, .flag = flag != 0 });
    return result;
}

template <Kind kind> int WriteNumber(sd_bus_message* value, const MprisControl& control, sd_bus_error*)
{
    double number = 0;
    const int result = sd_bus_message_read(value, "d", &number);
    if (result >= 0 && std::isfinite(number))
        control.Command({ .kind = kind, .number = number });
    return result;
}

int WriteLoop(sd_bus_message* value, const MprisControl& control, sd_bus_error* error)
{
    const char* text = nullptr;
    if (const int result = sd_bus_message_read(value, "s", &text); result < 0)
        return result;
    const auto loop = MprisLoop(text);
    if (!loop)
        return sd_bus_error_set_const(error, SD_BUS_ERROR_INVALID_ARGS, "None, Track or Playlist");
    control.Command({ .kind = Kind::SetLoop, .loop = *loop });
    return 0;
}

bool Always(const MediaStatus&)
{
    return true;
}

bool IsFullScreen(const MediaStatus& status)
{
    return status.fullScreen;
}

bool IsShuffled(const MediaStatus& status)
{
    return status.shuffle;
}

constexpr std::uint64_t kTold = SD_BUS_VTABLE_PROPERTY_EMITS_CHANGE;
constexpr std::uint64_t kUntold = 0;

} // namespace

const sd_bus_vtable kMprisRootTable[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("Raise", "", "", &OnVerb<Kind::Raise>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("Quit", "", "", &OnVerb<Kind::Quit>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_PROPERTY("CanQuit", "b", &Get<&ReadFlag<&Always>>, 0, kTold),
    SD_BUS_WRITABLE_PROPERTY("Fullscreen", "b", &Get<&ReadFlag<&IsFullScreen>>, &Set<&WriteFlag<Kind::SetFullScreen>>,
        0, kTold | SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_PROPERTY("CanSetFullscreen", "b", &Get<&ReadFlag<&Always>>, 0, kTold),
    SD_BUS_PROPERTY("CanRaise", "b", &Get<&ReadFlag<&Always>>, 0, kTold),
    SD_BUS_PROPERTY("HasTrackList", "b", &Get<&ReadFlag<&Always>>, 0, kTold),
    SD_BUS_PROPERTY("Identity", "s", &Get<&ReadIdentity>, 0, kTold),
    SD_BUS_PROPERTY("DesktopEntry", "s", &Get<&ReadDesktopEntry>, 0, kTold),
    SD_BUS_PROPERTY("SupportedUriSchemes", "as", &Get<&ReadUriSchemes>, 0, kTold),
    SD_BUS_PROPERTY("SupportedMimeTypes", "as", &Get<&ReadMimeTypes>, 0, kTold),
    SD_BUS_VTABLE_END,
};

const sd_bus_vtable kMprisPlayerTable[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("Next", "", "", &OnVerb<Kind::Next>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("Previous", "", "", &OnVerb<Kind::Previous>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("Pause", "", "", &OnVerb<Kind::Pause>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("PlayPause", "", "", &OnVerb<Kind::PlayPause>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("Stop", "", "", &OnVerb<Kind::Stop>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("Play", "", "", &OnVerb<Kind::Play>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_NAMES("Seek", "x", SD_BUS_PARAM(Offset), "", "", &OnSeek, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_NAMES("SetPosition", "ox", SD_BUS_PARAM(TrackId) SD_BUS_PARAM(Position), "", "", &OnSetPosition,
        SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_NAMES("OpenUri", "s", SD_BUS_PARAM(Uri), "", "", &OnOpenUri, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_SIGNAL_WITH_NAMES("Seeked", "x", SD_BUS_PARAM(Position), 0),
    SD_BUS_PROPERTY("PlaybackStatus", "s", &Get<&ReadPlayback>, 0, kTold),
    SD_BUS_WRITABLE_PROPERTY(
        "LoopStatus", "s", &Get<&ReadLoop>, &Set<&WriteLoop>, 0, kTold | SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_WRITABLE_PROPERTY("Rate", "d", &Get<&ReadNumber<&MediaStatus::rate>>, &Set<&WriteNumber<Kind::SetRate>>, 0,
        kTold | SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_WRITABLE_PROPERTY("Shuffle", "b", &Get<&ReadFlag<&IsShuffled>>, &Set<&WriteFlag<Kind::SetShuffle>>, 0,
        kTold | SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_PROPERTY("Metadata", "a{sv}", &Get<&ReadMetadata>, 0, kTold),
    SD_BUS_WRITABLE_PROPERTY("Volume", "d", &Get<&ReadNumber<&MediaStatus::volume>>,
        &Set<&WriteNumber<Kind::SetVolume>>, 0, kTold | SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_PROPERTY("Position", "x", &Get<&ReadPosition>, 0, kUntold),
    SD_BUS_PROPERTY("MinimumRate", "d", &Get<&ReadSlowest>, 0, kTold),
    SD_BUS_PROPERTY("MaximumRate", "d", &Get<&ReadFastest>, 0, kTold),
    SD_BUS_PROPERTY("CanGoNext", "b", &Get<&ReadFlag<&CanStep>>, 0, kTold),
    SD_BUS_PROPERTY("CanGoPrevious", "b", &Get<&ReadFlag<&CanStep>>, 0, kTold),
    SD_BUS_PROPERTY("CanPlay", "b", &Get<&ReadFlag<&CanPlay>>, 0, kTold),
    SD_BUS_PROPERTY("CanPause", "b", &Get<&ReadFlag<&CanPause>>, 0, kTold),
    SD_BUS_PROPERTY("CanSeek", "b", &Get<&ReadFlag<&CanSeek>>, 0, kTold),
    SD_BUS_PROPERTY("CanControl", "b", &Get<&ReadFlag<&Always>>, 0, kUntold),
    SD_BUS_VTABLE_END,
};

const sd_bus_vtable kMprisTrackListTable[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD_WITH_NAMES("GetTracksMetadata", "ao", SD_BUS_PARAM(TrackIds), "aa{sv}", SD_BUS_PARAM(Metadata),
        &OnGetTracksMetadata, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_NAMES("AddTrack", "sob", SD_BUS_PARAM(Uri) SD_BUS_PARAM(AfterTrack) SD_BUS_PARAM(SetAsCurrent),
        "", "", &OnAddTrack, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_NAMES(
        "RemoveTrack", "o", SD_BUS_PARAM(TrackId), "", "", &OnTrackVerb<Kind::RemoveTrack>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_NAMES(
        "GoTo", "o", SD_BUS_PARAM(TrackId), "", "", &OnTrackVerb<Kind::GoToTrack>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_SIGNAL_WITH_NAMES("TrackListReplaced", "aoo", SD_BUS_PARAM(Tracks) SD_BUS_PARAM(CurrentTrack), 0),
    SD_BUS_SIGNAL_WITH_NAMES("TrackAdded", "a{sv}o", SD_BUS_PARAM(Metadata) SD_BUS_PARAM(AfterTrack), 0),
    SD_BUS_SIGNAL_WITH_NAMES("TrackRemoved", "o", SD_BUS_PARAM(TrackId), 0),
    SD_BUS_SIGNAL_WITH_NAMES("TrackMetadataChanged", "oa{sv}", SD_BUS_PARAM(TrackId) SD_BUS_PARAM(Metadata), 0),
    SD_BUS_PROPERTY("Tracks", "ao", &Get<&ReadTracks>, 0, SD_BUS_VTABLE_PROPERTY_EMITS_INVALIDATION),
    SD_BUS_PROPERTY("CanEditTracks", "b", &Get<&ReadFlag<&Always>>, 0, kTold),
    SD_BUS_VTABLE_END,
};

} // namespace zentaro::platform
