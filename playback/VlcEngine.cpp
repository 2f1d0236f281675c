#include "playback/VlcEngine.h"

#include <vlc/vlc.h>

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

constexpr std::int64_t kMicroseconds = 1000; // in a millisecond

template <typename Description> std::vector<DiscPart> PartsOf(Description* const* all, int count)
{
    std::vector<DiscPart> parts;
    for (int i = 0; i < count; ++i)
        parts.push_back(
            { all[i]->psz_name != nullptr ? all[i]->psz_name : "", static_cast<double>(all[i]->i_duration), 0 });
    return parts;
}

} // namespace

VlcEngine::VlcEngine(VlcItems& items)
    : m_items(items)
{
}

VlcEngine::~VlcEngine()
{
    Close();
}

void VlcEngine::SetVolume(int percent)
{
    m_volume = percent;
    if (m_player != nullptr)
        libvlc_audio_set_volume(m_player, percent);
}

void VlcEngine::SetMute(bool muted)
{
    m_muted = muted;
    if (m_player != nullptr)
        libvlc_audio_set_mute(m_player, muted);
}

std::vector<EngineTrack> VlcEngine::AudioTracks()
{
    return Tracks(&libvlc_audio_get_track_description);
}

int VlcEngine::AudioTrack()
{
    return m_player ? libvlc_audio_get_track(m_player) : -1;
}

void VlcEngine::SetAudioTrack(int id)
{
    if (m_player != nullptr)
        libvlc_audio_set_track(m_player, id);
}

int VlcEngine::AudioDelay()
{
    return m_player ? static_cast<int>(libvlc_audio_get_delay(m_player) / kMicroseconds) : 0;
}

void VlcEngine::SetAudioDelay(int milliseconds)
{
    if (m_player != nullptr)
        libvlc_audio_set_delay(m_player, milliseconds * kMicroseconds);
}

int VlcEngine::SubtitleDelay()
{
    return m_player ? static_cast<int>(libvlc_video_get_spu_delay(m_player) / kMicroseconds) : 0;
}

void VlcEngine::SetSubtitleDelay(int milliseconds)
{
    if (m_player != nullptr)
        libvlc_video_set_spu_delay(m_player, milliseconds * kMicroseconds);
}

void VlcEngine::NextFrame()
{
    if (m_player != nullptr)
        libvlc_media_player_next_frame(m_player);
}

std::vector<EngineTrack> VlcEngine::SubtitleTracks()
{
    return Tracks(&libvlc_video_get_spu_description);
}

int VlcEngine::SubtitleTrack()
{
    return m_player ? libvlc_video_get_spu(m_player) : -1;
}

void VlcEngine::SetSubtitleTrack(int id)
{
    if (m_player != nullptr)
        libvlc_video_set_spu(m_player, id);
}

bool VlcEngine::AddSubtitleFile(const std::string& path)
{
    if (m_player == nullptr)
        return false;
    auto* const media = libvlc_media_new_path(m_open.instance.get(), path.c_str());
    auto* const address = media != nullptr ? libvlc_media_get_mrl(media) : nullptr;
    const bool isAdded = address != nullptr
        && libvlc_media_player_add_slave(m_player, libvlc_media_slave_type_subtitle, address, true) == 0;
    libvlc_free(address);
    if (media != nullptr)
        libvlc_media_release(media);
    return isAdded;
}

std::string VlcEngine::AspectRatio()
{
    auto* const text = m_player != nullptr ? libvlc_video_get_aspect_ratio(m_player) : nullptr;
    std::string ratio = text != nullptr ? text : "";
    libvlc_free(text);
    return ratio;
}

void VlcEngine::SetAspectRatio(const std::string& ratio)
{
    if (m_player != nullptr)
        libvlc_video_set_aspect_ratio(m_player, ratio.empty() ? nullptr : ratio.c_str());
}

std::string VlcEngine::Deinterlacing()
{
    return m_deinterlacing;
}

void VlcEngine::SetDeinterlacing(const std::string& filter)
{
    // The library cannot be asked.
    m_deinterlacing = filter;
    if (m_player != nullptr)
        libvlc_video_set_deinterlace(m_player, filter.empty() ? nullptr : filter.c_str());
}

double VlcEngine::Length()
{
    return static_cast<double>(m_player ? libvlc_media_player_get_length(m_player) : -1);
}

double VlcEngine::Time()
{
    return static_cast<double>(m_player ? libvlc_media_player_get_time(m_player) : -1);
}

double VlcEngine::Position()
{
    // The library's own reading can run past the end.
    return m_player ? std::clamp(static_cast<double>(libvlc_media_player_get_position(m_player)), 0.0, 1.0) : 0;
}

void VlcEngine::SetPosition(double position)
{
    if (m_player != nullptr)
        libvlc_media_player_set_position(m_player, static_cast<float>(position));
}

int VlcEngine::State()
{
    if (m_player == nullptr)
        return m_isAdded ? kStopped : 0;
    const auto state = m_open.item->State();
    // A pause that it was made ready with is none that anybody asked for.
    m_isLeavingPause = m_isLeavingPause && state <= kPaused && state != kPlaying;
    return m_isLeavingPause && state == kPaused ? kOpening : state;
}

double VlcEngine::Rate()
{
    return m_player ? static_cast<double>(libvlc_media_player_get_rate(m_player)) : 1.0;
}

void VlcEngine::SetRate(double rate)
{
    if (m_player != nullptr)
        libvlc_media_player_set_rate(m_player, static_cast<float>(rate));
}

bool VlcEngine::HasVideoOutput()
{
    return m_player != nullptr && (m_unseenTrack >= 0 || libvlc_media_player_has_vout(m_player) > 0);
}

void VlcEngine::SetSeen(bool seen)
{
    if (m_player == nullptr || seen == (m_unseenTrack < 0))
        return;
    if (!seen) {
        // Without sound nothing would go on.
        if (libvlc_audio_get_track(m_player) < 0 || State() != kPlaying)
            return;
        m_unseenTrack = libvlc_video_get_track(m_player);
        if (m_unseenTrack >= 0)
            libvlc_video_set_track(m_player, -1);
        return;
    }
    libvlc_video_set_track(m_player, std::exchange(m_unseenTrack, -1));
    // Else there would be no picture until the next key frame.
    libvlc_media_player_set_time(m_player, libvlc_media_player_get_time(m_player));
}

bool VlcEngine::TakeSnapshot(const std::string& file)
{
    return m_player != nullptr && libvlc_video_take_snapshot(m_player, 0, file.c_str(), 0, 0) == 0;
}

void VlcEngine::Add(const MediaLocation& location, const EngineOptions& options)
{
    if (m_isAdded)
        return;
    m_location = location;
    m_options = options;
    m_isAdded = Open();
    // A refused item leaves no black surface behind.
    if (!m_isAdded)
        Close();
}

void VlcEngine::Play()
{
    if (!m_isAdded)
        return;
    const auto state = State();
    // An ended player takes no order but stop.
    if (state >= kEnded)
        Close();
    if (m_player == nullptr && !Open())
        return;
    if (state > 0 && !m_isLeavingPause)
        m_pauseWaits = false;
    if (std::exchange(m_open.isReady, false))
        m_open.item->GoOn();
    else
        libvlc_media_player_play(m_player);
}

void VlcEngine::SetPause(bool paused)
{
    const auto state = State();
    m_pauseWaits = paused && m_isAdded && state < kPlaying;
    if (m_player == nullptr || m_pauseWaits)
        return;
    // The library stops what cannot pause, and waits for it.
    if (paused ? state == kPlaying && libvlc_media_player_can_pause(m_player) : state == kPaused)
        libvlc_media_player_set_pause(m_player, paused);
}

void VlcEngine::TogglePause()
{
    SetPause(State() != kPaused && !m_pauseWaits);
}

void VlcEngine::Stop()
{
    m_pauseWaits = false;
    Close();
}

void VlcEngine::Navigate(DiscKey key)
{
    constexpr unsigned kKeys[] = { libvlc_navigate_activate, libvlc_navigate_up, libvlc_navigate_down,
        libvlc_navigate_left, libvlc_navigate_right };
    if (m_player != nullptr)
        libvlc_media_player_navigate(m_player, kKeys[static_cast<int>(key)]);
}

std::vector<DiscPart> VlcEngine::Titles()
{
    libvlc_title_description_t** all = nullptr;
    const int count = m_player ? libvlc_media_player_get_full_title_descriptions(m_player, &all) : 0;
    const auto parts = PartsOf(all, count);
    if (all != nullptr)
        libvlc_title_descriptions_release(all, static_cast<unsigned>(std::max(count, 0)));
    return parts;
}

int VlcEngine::Title()
{
    return m_player ? libvlc_media_player_get_title(m_player) : -1;
}

void VlcEngine::SetTitle(int index)
{
    if (m_player != nullptr)
        libvlc_media_player_set_title(m_player, index);
}

std::vector<DiscPart> VlcEngine::Chapters()
{
    libvlc_chapter_description_t** all = nullptr;
    const int count = m_player ? libvlc_media_player_get_full_chapter_descriptions(m_player, -1, &all) : 0;
    auto parts = PartsOf(all, count);
    for (std::size_t i = 0; i < parts.size(); ++i)
        parts[i].start = static_cast<double>(all[i]->i_time_offset);
    if (all != nullptr)
        libvlc_chapter_descriptions_release(all, static_cast<unsigned>(std::max(count, 0)));
    return parts;
}

int VlcEngine::Chapter()
{
    return m_player ? libvlc_media_player_get_chapter(m_player) : -1;
}

void VlcEngine::SetChapter(int index)
{
    if (m_player != nullptr)
        libvlc_media_player_set_chapter(m_player, index);
}

int VlcEngine::ItemCount()
{
    return m_isAdded ? 1 : 0;
}

std::vector<EngineTrack> VlcEngine::Tracks(libvlc_track_description_t* (*describe)(libvlc_media_player_t*)) const
{
    std::vector<EngineTrack> tracks;
    auto* const first = m_player != nullptr ? describe(m_player) : nullptr;
    for (const auto* each = first; each != nullptr; each = each->p_next)
        tracks.push_back({ each->i_id, each->psz_name != nullptr ? each->psz_name : "" });
    if (first != nullptr)
        libvlc_track_description_list_release(first);
    return tracks;
}

bool VlcEngine::Open()
{
    Close();
    auto open = m_items.Take(m_location, m_options);
    if (!open.item)
        return false;
    m_open = std::move(open);
    m_isLeavingPause = m_open.isReady;
    // A pause that was asked for too early is given now.
    *m_open.onPlaying = [this] {
        if (m_pauseWaits)
            SetPause(true);
    };
    m_player = m_open.Player();
    libvlc_audio_set_volume(m_player, m_volume);
    libvlc_audio_set_mute(m_player, m_muted);
    m_deinterlacing = kDeinterlaceAuto;
    return true;
}

void VlcEngine::Close()
{
    m_player = nullptr;
    m_unseenTrack = -1;
    m_isLeavingPause = false;
    if (m_open.item)
        m_items.End(std::exchange(m_open, {}));
}

} // namespace zentaro
