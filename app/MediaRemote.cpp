#include "app/MediaRemote.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zentaro {

namespace {

using platform::MediaCommand;
using platform::MediaLoop;
using platform::MediaPlayback;

// The rates are powers of two.
constexpr double kSlowest = -3;
constexpr double kFastest = 4;

MediaLoop LoopOf(std::int32_t repeatMode)
{
    if (repeatMode == kRepeatSingle)
        return MediaLoop::Track;
    return repeatMode == kRepeatAll ? MediaLoop::Playlist : MediaLoop::None;
}

/// The command that chooses the mode.
std::string_view CommandOf(MediaLoop loop)
{
    if (loop == MediaLoop::Track)
        return "RMSingleRepeat";
    return loop == MediaLoop::Playlist ? "RMRepeatAll" : "RMNoRepeat";
}

platform::MediaTrack TrackOf(const PlaylistEntry& entry)
{
    const auto& facts = entry.Facts;
    if (facts.width > 0)
        return { entry.Id, entry.Title, entry.FullPath };
    return { entry.Id, facts.song.empty() ? entry.Title : facts.song, entry.FullPath, facts.artist, facts.album,
        facts.number, facts.year, true };
}

} // namespace

MediaRemote::MediaRemote(Player& player, Window window)
    : m_player(player)
    , m_window(std::move(window))
{
}

MediaPlayback MediaRemote::Playback() const
{
    auto* const engine = m_player.Transporting().Host().VLCPlayer();
    if (engine == nullptr || !m_player.State().mediaControlsEnabled)
        return MediaPlayback::Stopped;
    const bool isPaused = m_player.State().isPaused || engine->State() == Engine::kPaused;
    return isPaused ? MediaPlayback::Paused : MediaPlayback::Playing;
}

platform::MediaStatus MediaRemote::Status()
{
    const auto& settings = m_player.Settings();
    if (settings.PlayMode != kPlayShuffle)
        m_orderedMode = settings.PlayMode;
    UpdateTrack();
    UpdateTracks();
    platform::MediaStatus status;
    status.playback = Playback();
    status.loop = LoopOf(settings.RepeatMode);
    status.shuffle = settings.PlayMode == kPlayShuffle;
    status.volume = m_player.Transporting().Host().Volume() / 100.0;
    status.fullScreen = m_window.isFullScreen();
    status.track = m_track;
    const auto cover = m_window.coverFile(m_track.id);
    status.artwork = cover.empty() ? m_artwork : cover;
    status.tracks = m_tracks;
    for (int slot = 0; slot < kHistorySlots; ++slot) {
        const auto& played = *m_player.BothMenus().SmartMenuXP1.Find(HistoryKey(slot));
        if (!played.tag.empty())
            status.recent.push_back({ 0, played.caption, played.tag });
    }
    status.readAt = std::chrono::steady_clock::now();
    if (status.playback != MediaPlayback::Stopped) {
        auto& engine = *m_player.Transporting().Host().VLCPlayer();
        status.rate = engine.Rate();
        status.length = std::max(engine.Length(), 0.0);
        status.position = std::max(engine.Time(), 0.0);
    }
    return status;
}

void MediaRemote::UpdateTrack()
{
    if (Playback() == MediaPlayback::Stopped) {
        m_track = {};
        m_picture = {};
        m_artwork.clear();
        return;
    }
    // An item that was taken off the list plays on, and is still what it was.
    const auto entry = m_player.Entries().EntryAt(m_player.Entries().List().PlayingItem());
    if (!entry)
        return;
    if (entry->Id != m_track.id) {
        m_track = TrackOf(*entry);
        m_picture = {};
        m_artwork.clear();
    }
    // It comes after the report, and a better one later still; a row far from sight has none.
    if (!entry->Thumbnail || entry->Thumbnail == m_picture)
        return;
    m_picture = entry->Thumbnail;
    m_artwork = m_window.saveArtwork(entry->Id, m_picture);
}

void MediaRemote::UpdateTracks()
{
    const auto& entries = m_player.Entries();
    if (std::exchange(m_revision, entries.Revision()) == entries.Revision())
        return;
    std::vector<platform::MediaTrack> tracks;
    tracks.reserve(static_cast<std::size_t>(entries.Count()));
    for (int i = 0; i < entries.Count(); ++i)
        tracks.push_back(TrackOf(*entries.EntryAt(i)));
    m_tracks = std::make_shared<const std::vector<platform::MediaTrack>>(std::move(tracks));
}

void MediaRemote::Do(const MediaCommand& command)
{
    const auto track = IndexOf(command.track);
    switch (command.kind) {
    case MediaCommand::Kind::Play:
        return Play();
    case MediaCommand::Kind::Pause:
        return Playback() == MediaPlayback::Playing ? m_player.Transporting().CMDPauseClick() : void();
    case MediaCommand::Kind::PlayPause:
        return Playback() == MediaPlayback::Playing ? m_player.Transporting().CMDPauseClick() : Play();
    case MediaCommand::Kind::Stop:
        return Playback() != MediaPlayback::Stopped ? m_player.RunCommand("Stop") : void();
    case MediaCommand::Kind::Next:
        return m_player.RunCommand("Next");
    case MediaCommand::Kind::Previous:
        return m_player.RunCommand("Previous");
    case MediaCommand::Kind::SeekBy:
        return SeekBy(command.number);
    case MediaCommand::Kind::SetPosition:
        return SetPosition(command.track, command.number);
    case MediaCommand::Kind::SetRate:
        return SetRate(command.number);
    case MediaCommand::Kind::SetVolume:
        return m_player.Transporting().SetVolume(RoundHalfEven(std::clamp(command.number, 0.0, 1.0) * 100));
    case MediaCommand::Kind::SetLoop:
        return m_player.RunCommand(CommandOf(command.loop));
    case MediaCommand::Kind::SetShuffle:
        return SetShuffle(command.flag);
    case MediaCommand::Kind::SetFullScreen:
        return SetFullScreen(command.flag);
    case MediaCommand::Kind::OpenFile:
        return m_player.Files().DropOnVideo({ command.path });
    case MediaCommand::Kind::AddFile:
        return command.flag ? m_player.Files().DropOnVideo({ command.path })
                            : m_player.Files().DropOnList({ command.path });
    case MediaCommand::Kind::RemoveTrack:
        return track ? RemoveTrack(*track) : void();
    case MediaCommand::Kind::GoToTrack:
        return track ? m_player.Sequence().PlayEntry(*track) : void();
    case MediaCommand::Kind::Raise:
        return m_window.raise();
    case MediaCommand::Kind::Quit:
        return m_window.close();
    }
}

void MediaRemote::Play()
{
    // Playing from an empty list would ask for files.
    if (Playback() == MediaPlayback::Paused || (Playback() == MediaPlayback::Stopped && m_player.Entries().Count() > 0))
        m_player.Sequence().PlayOrPause();
}

void MediaRemote::SeekBy(double milliseconds)
{
    auto* const engine = m_player.Transporting().Host().VLCPlayer();
    if (Playback() == MediaPlayback::Stopped || engine->Length() <= 0)
        return;
    const auto length = engine->Length();
    if (engine->Time() + milliseconds > length)
        m_player.RunCommand("Next");
    else
        m_player.Transporting().SeekBy(RoundHalfEven(std::max(milliseconds, -length)));
}

void MediaRemote::SetPosition(std::uint64_t track, double milliseconds)
{
    // A client can speak of the item before.
    if (Playback() == MediaPlayback::Stopped || track == 0 || track != m_track.id)
        return;
    const auto length = m_player.Transporting().Host().VLCPlayer()->Length();
    if (length > 0 && milliseconds >= 0 && milliseconds <= length)
        m_player.Transporting().Seek(milliseconds / length);
}

void MediaRemote::SetRate(double rate)
{
    if (rate == 0)
        return Do({ .kind = MediaCommand::Kind::Pause });
    if (rate < 0 || Playback() == MediaPlayback::Stopped)
        return;
    const auto nearest = std::exp2(std::clamp(std::nearbyint(std::log2(rate)), kSlowest, kFastest));
    while (m_player.State().chosenRate < nearest)
        m_player.Transporting().IncreaseRate();
    while (m_player.State().chosenRate > nearest)
        m_player.Transporting().DecreaseRate();
}

void MediaRemote::SetShuffle(bool shuffle)
{
    if (shuffle == (m_player.Settings().PlayMode == kPlayShuffle))
        return; // a new order would be drawn
    const auto* const ordered = m_orderedMode == kPlayNormal ? "PMNormal" : "PMContinuous";
    m_player.RunCommand(shuffle ? "PMShuffle" : ordered);
}

void MediaRemote::SetFullScreen(bool fullScreen)
{
    // Without an item there is nothing to fill the screen with.
    if (!fullScreen || Playback() != MediaPlayback::Stopped)
        m_player.Transporting().Host().SetFullScreen(fullScreen);
}

std::optional<int> MediaRemote::IndexOf(std::uint64_t track) const
{
    return m_player.Entries().IndexOf(track);
}

void MediaRemote::RemoveTrack(int index)
{
    auto& list = m_player.Entries().List();
    const int selected = list.SelectedItem();
    list.SetSelectedItem(index);
    m_player.RunCommand("Remove");
    if (selected < 0)
        list.Press(FancyListItems::kNone);
    else if (selected != index)
        list.SetSelectedItem(selected > index ? selected - 1 : selected);
}

} // namespace zentaro
