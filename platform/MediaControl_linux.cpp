#include "platform/MediaControl_linux.h"

#include "desktop/MprisRules.h"

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace zentaro::platform {

using namespace desktop;

namespace {

constexpr const char* kObjectPath = "/org/mpris/MediaPlayer2";
constexpr const char* kBusName = "org.mpris.MediaPlayer2.zentaro";
constexpr std::uint32_t kNameIsOwned = 1;

void AnnounceProperties(sd_bus* bus, const char* interface, std::vector<const char*> names)
{
    if (names.empty())
        return;
    names.push_back(nullptr);
    // The names are read, never written.
    sd_bus_emit_properties_changed_strv(bus, kObjectPath, interface, const_cast<char**>(names.data()));
}

void EmitTracks(sd_bus* bus, const char* signal, const std::function<int(sd_bus_message*)>& fill)
{
    sd_bus_message* message = nullptr;
    if (sd_bus_message_new_signal(bus, &message, kObjectPath, kMprisTrackList, signal) < 0)
        return;
    if (fill(message) >= 0)
        sd_bus_send(bus, message, nullptr);
    sd_bus_message_unref(message);
}

} // namespace

MprisControl::MprisControl(
    std::string busAddress, std::function<void(MediaCommand)> onCommand, std::chrono::milliseconds retry)
    : m_busAddress(std::move(busAddress))
    , m_onCommand(std::move(onCommand))
    , m_retry(retry)
{
}

MprisControl::~MprisControl()
{
    m_thread.reset();
}

void MprisControl::Publish(MediaStatus status)
{
    {
        const std::lock_guard lock(m_mutex);
        m_next = std::move(status);
    }
    if (m_thread)
        m_thread->Wake();
    else
        m_thread = std::make_unique<BusThread>(m_busAddress, static_cast<BusClient&>(*this), m_retry);
}

const MediaTrack* MprisControl::TrackWith(std::uint64_t id) const
{
    if (id == 0 || !m_shown.tracks)
        return nullptr;
    const auto& tracks = *m_shown.tracks;
    const auto at = std::find_if(tracks.begin(), tracks.end(), [&](const MediaTrack& track) { return track.id == id; });
    return at == tracks.end() ? nullptr : &*at;
}

void MprisControl::Connected(sd_bus* bus)
{
    sd_bus_add_object_vtable(bus, nullptr, kObjectPath, kMprisRoot, kMprisRootTable, this);
    sd_bus_add_object_vtable(bus, nullptr, kObjectPath, kMprisPlayer, kMprisPlayerTable, this);
    sd_bus_add_object_vtable(bus, nullptr, kObjectPath, kMprisTrackList, kMprisTrackListTable, this);
    sd_bus_request_name_async(bus, nullptr, kBusName, 0, &OnNameAnswer, this);
}

int MprisControl::OnNameAnswer(sd_bus_message* answer, void*, sd_bus_error*)
{
    std::uint32_t result = 0;
    if (sd_bus_message_is_method_error(answer, nullptr) > 0 || sd_bus_message_read(answer, "u", &result) < 0
        || result == kNameIsOwned)
        return 0;
    // Another player has the name; without ours on top nobody would find this one.
    const auto name = std::string(kBusName) + ".instance" + std::to_string(getpid());
    const auto ignore = [](sd_bus_message*, void*, sd_bus_error*) { return 0; };
    return sd_bus_request_name_async(sd_bus_message_get_bus(answer), nullptr, name.c_str(), 0, ignore, nullptr);
}

void MprisControl::Speak(sd_bus* bus)
{
    auto before = m_shown;
    {
        const std::lock_guard lock(m_mutex);
        m_shown = m_next;
    }
    AnnounceProperties(bus, kMprisRoot, ChangedRootProperties(before, m_shown));
    AnnounceProperties(bus, kMprisPlayer, ChangedPlayerProperties(before, m_shown));
    if (HasJumped(before, m_shown))
        sd_bus_emit_signal(bus, kObjectPath, kMprisPlayer, "Seeked", "x",
            static_cast<std::int64_t>(m_shown.position * kMprisMicroseconds));
    AnnounceTracks(bus, before);
}

void MprisControl::AnnounceTracks(sd_bus* bus, const MediaStatus& before) const
{
    const auto change = ChangeOfTracks(before.tracks, m_shown.tracks);
    const auto count = m_shown.tracks ? m_shown.tracks->size() : 0;
    if (change.removed.empty() && change.addedFrom == count && !change.replaced)
        return;
    AnnounceProperties(bus, kMprisTrackList, { "Tracks" });
    if (change.replaced) {
        EmitTracks(bus, "TrackListReplaced", [&](sd_bus_message* message) {
            AppendTrackPaths(message, m_shown.tracks);
            return sd_bus_message_append(message, "o", MprisTrackPathOrNone(m_shown.track.id).c_str());
        });
        return;
    }
    for (const auto id : change.removed)
        EmitTracks(bus, "TrackRemoved",
            [&](sd_bus_message* message) { return sd_bus_message_append(message, "o", MprisTrackPath(id).c_str()); });
    for (auto i = change.addedFrom; i < count; ++i)
        EmitTracks(bus, "TrackAdded", [&](sd_bus_message* message) {
            AppendMetadata(message, (*m_shown.tracks)[i], m_shown);
            const auto after = MprisTrackPathOrNone(i > 0 ? (*m_shown.tracks)[i - 1].id : 0);
            return sd_bus_message_append(message, "o", after.c_str());
        });
}

std::unique_ptr<MediaControl> MediaControl::Open(std::function<void(MediaCommand)> onCommand, NativeWindow)
{
    return std::make_unique<MprisControl>(SessionBusAddress(), std::move(onCommand));
}

} // namespace zentaro::platform
