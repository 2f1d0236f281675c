#include "app/MusicStage.h"

#include "app/MusicView.h"
#include "app/Player.h"
#include "playback/VideoFrame.h"
#include "shell/Style.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace zentaro {

namespace {

constexpr auto kPictureTime = std::chrono::milliseconds(1000 / kBarPictures);
constexpr double kLongestStep = 0.1; // seconds; after a longer one nobody sees where the bars were

} // namespace

MusicStage::MusicStage(Player& player, Music& music, VideoFrame& video, const QString& artPath)
    : QObject(&video)
    , m_player(player)
    , m_music(music)
    , m_view(new MusicView(artPath, &video.AudioLogo()))
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(kPictureTime);
    connect(&m_timer, &QTimer::timeout, this, &MusicStage::Tick);
    m_music.onNews = [this] {
        const auto& song = m_music.Shown();
        if (const auto id = song ? song->id : 0; std::exchange(m_shown, id) != id)
            m_view->ResetBars();
        m_view->Show(song ? &*song : nullptr);
        Follow();
    };
}

std::optional<PlaylistEntry> MusicStage::PlayingSong() const
{
    auto entry = m_player.Entries().EntryAt(m_player.Entries().List().PlayingItem());
    if (!entry || entry->Facts.width > 0)
        return std::nullopt;
    if (m_player.Files().Better().isStandIn(entry->Thumbnail))
        entry->Thumbnail = {};
    return entry;
}

void MusicStage::Follow()
{
    const bool isLoaded = m_player.State().mediaControlsEnabled && !m_player.State().hasVideoOutput;
    const bool isInList = m_player.Entries().List().PlayingItem() >= 0;
    if (!isLoaded || m_player.Transporting().Item().IsDisc() || !m_player.Choices().Has(Choice::MusicView))
        m_music.Follow(std::nullopt);
    else if (isInList)
        // One that was taken off the list plays on, and is still what it was.
        m_music.Follow(PlayingSong());
    if (MayMove() == m_timer.isActive())
        return;
    if (m_timer.isActive()) {
        m_timer.stop();
        // Paused, the bars stay as they are, and so does what is known of them.
        if (!m_player.State().isPaused)
            m_music.LeaveBars();
    } else {
        m_sinceTick.start();
        m_timer.start();
    }
}

bool MusicStage::MayMove() const
{
    return m_music.Shown() && !style::HasLessMotion() && !m_player.State().isPaused && m_view->isVisible()
        && !m_view->window()->isMinimized();
}

void MusicStage::Tick()
{
    auto* const engine = m_player.Transporting().LoadedEngine();
    if (engine == nullptr || !MayMove())
        return Follow();
    const double seconds = std::min(static_cast<double>(m_sinceTick.restart()) / 1000, kLongestStep);
    const double rate = engine->State() == Engine::kPlaying ? engine->Rate() : 0;
    const double time = m_clock.At(engine->Time(), rate, std::chrono::steady_clock::now());
    m_music.WantBars(time);
    m_view->MoveBars(m_music.BarsAt(time), seconds);
}

} // namespace zentaro
