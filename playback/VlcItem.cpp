#include "playback/VlcItem.h"

#include "base/DetachedThread.h"
#include "playback/Engine.h"
#include "playback/VideoFrame.h"
#include "playback/VlcLog.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <vlc/vlc.h>

#include <cstring>
#include <system_error>
#include <utility>

namespace zentaro {

namespace {

constexpr std::chrono::milliseconds kMostUnseen(300); // of an item that is made ready

// memory output: the library writes into pictures of ours
unsigned OnFormat(void** opaque, char* chroma, unsigned* width, unsigned* height, unsigned* pitches, unsigned* lines)
{
    auto& sink = *static_cast<PictureSink*>(*opaque);
    std::memcpy(chroma, "RV32", 4);
    if (!sink.Resize(*width, *height))
        return 0;
    *pitches = static_cast<unsigned>(sink.BytesPerLine());
    *lines = *height;
    return 1;
}

void* OnLock(void* opaque, void** planes)
{
    *planes = static_cast<PictureSink*>(opaque)->NextPicture();
    return nullptr;
}

void OnDisplay(void* opaque, void*)
{
    static_cast<PictureSink*>(opaque)->Show();
}

} // namespace

struct VlcItem::Held {
    std::mutex mutex; // held while the library is told what follows from the stage, never in what it calls
    std::atomic<Stage> stage = Stage::Free;
};

void VlcEndings::Begin()
{
    const std::lock_guard lock(m_mutex);
    ++m_count;
}

void VlcEndings::End()
{
    const std::lock_guard lock(m_mutex);
    --m_count;
    m_changed.notify_all();
}

bool VlcEndings::AreAny() const
{
    const std::lock_guard lock(m_mutex);
    return m_count > 0;
}

void VlcEndings::Wait(std::chrono::milliseconds time)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, time, [this] { return m_count == 0; });
}

VlcItem::VlcItem(VlcLibrary library, libvlc_media_t* media, VideoSurface* surface, Events events)
    : m_library(std::move(library))
    , m_media(media)
    , m_surface(surface)
    , m_sink(surface->Sink())
    , m_events(std::move(events))
    , m_held(std::make_shared<Held>())
    , m_player(libvlc_media_player_new_from_media(media))
{
    if (m_player == nullptr)
        return;
    // The window handles keys and pointer; the library must not compete.
    libvlc_video_set_mouse_input(m_player, 0);
    libvlc_video_set_key_input(m_player, 0);
    AttachSurface();
    ListenToEvents(true);
}

VlcItem::~VlcItem()
{
    if (m_player != nullptr) {
        libvlc_media_player_stop(m_player);
        libvlc_media_player_release(m_player);
    }
    libvlc_media_release(m_media);
    const auto deleteSurface = [surface = m_surface] { delete surface.data(); };
    if (auto* const application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, deleteSurface, Qt::QueuedConnection);
}

void VlcItem::ListenToEvents(bool listens)
{
    auto* const events = libvlc_media_player_event_manager(m_player);
    for (const libvlc_event_type_t type :
        { libvlc_MediaPlayerPlaying, libvlc_MediaPlayerBuffering, libvlc_MediaPlayerVout, libvlc_MediaPlayerEndReached,
            libvlc_MediaPlayerEncounteredError, libvlc_MediaPlayerStopped }) {
        if (listens)
            libvlc_event_attach(events, type, &OnEvent, this);
        else
            libvlc_event_detach(events, type, &OnEvent, this);
    }
}

void VlcItem::OnEvent(const libvlc_event_t* event, void* item)
{
    auto& self = *static_cast<VlcItem*>(item);
    if (event->type == libvlc_MediaPlayerPlaying)
        return self.m_events.onPlaying();
    if (event->type == libvlc_MediaPlayerBuffering) {
        if (event->u.media_player_buffering.new_cache >= 100)
            self.Step(Stage::Opening, Stage::Starting);
        return;
    }
    if (event->type == libvlc_MediaPlayerVout)
        return self.Step(Stage::Starting, Stage::Standing);
    if (event->type == libvlc_MediaPlayerEncounteredError)
        self.m_hasFailed = true;
    else if (event->type == libvlc_MediaPlayerStopped)
        self.m_isOver = true;
    self.m_events.onOver();
}

void VlcItem::AttachSurface()
{
    if (m_sink) {
        libvlc_video_set_callbacks(m_player, &OnLock, nullptr, &OnDisplay, m_sink.get());
        libvlc_video_set_format_callbacks(m_player, &OnFormat, nullptr);
    } else if (QGuiApplication::platformName() == "windows") {
        libvlc_media_player_set_hwnd(m_player, reinterpret_cast<void*>(m_surface->winId()));
    } else {
        libvlc_media_player_set_xwindow(m_player, static_cast<std::uint32_t>(m_surface->winId()));
    }
}

void VlcItem::GetReady()
{
    m_held->stage = Stage::Opening;
    libvlc_media_add_option(m_media, ":start-paused");
    libvlc_audio_set_mute(m_player, 1);
    libvlc_media_player_play(m_player);
}

void VlcItem::GoOn()
{
    const std::lock_guard lock(m_held->mutex);
    // One that has found no output has played on, unseen.
    if (m_held->stage.exchange(Stage::Free) != Stage::Opening
        && libvlc_media_player_get_time(m_player) > kMostUnseen.count())
        libvlc_media_player_set_time(m_player, 0);
    // Unlike an end of the pause this counts behind a pause that is still on its way.
    libvlc_media_player_play(m_player);
}

// A paused item has read what it needs, but decodes nothing: to find decoder and output would be left for when somebody
// waits. So it plays, unheard, until there is an output, which is when its clock begins.
void VlcItem::Step(Stage from, Stage to)
{
    if (!m_held->stage.compare_exchange_strong(from, to))
        return;
    libvlc_media_player_retain(m_player);
    // From the library's own thread the library may not be called.
    const auto step = [player = m_player, held = m_held, to] {
        {
            const std::lock_guard lock(held->mutex);
            // Sound alone has nothing to be found that takes long, and would be over by the time.
            if (held->stage == to && libvlc_video_get_track_count(player) > 0)
                libvlc_media_player_set_pause(player, to == Stage::Standing);
        }
        libvlc_media_player_release(player);
    };
    try {
        StartDetached(step);
    } catch (const std::system_error&) {
        libvlc_media_player_release(m_player); // it has its first picture later then
    }
}

bool VlcItem::HasDecoded() const
{
    libvlc_media_stats_t stats{};
    return libvlc_media_get_stats(m_media, &stats) && stats.i_decoded_video + stats.i_decoded_audio > 0;
}

int VlcItem::State() const
{
    const auto state = static_cast<int>(libvlc_media_player_get_state(m_player));
    if (state < Engine::kEnded && !m_hasFailed)
        return state;
    // By its state alone the library shows a failed item as an ended one, and by its clock a very short one as a failed
    // one: time and length can be 0 to the end.
    if (HasDecoded())
        return Engine::kEnded;
    // What was decoded last is counted a moment after the end.
    return m_isOver ? Engine::kFailed : Engine::kPlaying;
}

void VlcItem::ShowSurface()
{
    if (m_surface)
        m_surface->Appear();
}

void VlcItem::Vanish()
{
    if (m_player != nullptr) {
        ListenToEvents(false);
        libvlc_audio_set_mute(m_player, 1);
    }
    if (m_surface)
        m_surface->Vanish();
}

void VlcItem::End(std::unique_ptr<VlcItem> item, std::shared_ptr<VlcEndings> endings)
{
    if (!item)
        return;
    item->Vanish();
    endings->Begin();
    const auto end = [ending = item.release(), endings = std::move(endings)] {
        delete ending;
        endings->End();
    };
    try {
        StartDetached(end);
    } catch (const std::system_error&) {
        end(); // the system has no thread to give
    }
}

} // namespace zentaro
