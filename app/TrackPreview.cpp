#include "app/TrackPreview.h"

#include "app/Player.h"
#include "app/ThumbScrub.h"
#include "playback/VideoFrame.h"
#include "playlist/FancyList.h"
#include "shell/PreviewBubble.h"
#include "shell/SeekTrack.h"
#include "shell/WindowLayout.h"

#include <utility>

namespace zentaro {

namespace {

constexpr int kDistance = 6; // px, of the bubble from the track

} // namespace

TrackPreview::TrackPreview(Player& player, Previews& previews, SeekTrack& track, QWidget* window)
    : QObject(window)
    , m_player(player)
    , m_previews(previews)
    , m_track(track)
    , m_window(window)
    , m_bubble(new PreviewBubble(window))
{
    LetCoverVideo(*m_bubble);
    connect(&track, &SeekTrack::PointedAt, this, &TrackPreview::Point);
    connect(&track, &SeekTrack::PointerLeft, this, &TrackPreview::Leave);
}

Previews::Film TrackPreview::Film() const
{
    const auto& state = m_player.State();
    const auto& item = m_player.Transporting().Item();
    if (!state.hasVideoOutput || item.IsDisc() || !m_player.Choices().Has(Choice::Previews))
        return {};
    return { item.path, state.length };
}

void TrackPreview::Point(double x, double time, const QString& timeText, const QString& chapter)
{
    m_isPointing = true;
    m_previews.onNews = [this] { ShowPicture(); };
    m_previews.PointAt(Film(), time);
    ShowPicture();
    // In the window the time stands over the track, and is read meanwhile.
    const bool isUnderTime = m_track.parentWidget() == m_window;
    const int distance =
        isUnderTime ? WindowLayout(m_window->width(), m_window->height()).TimeLabel().height : kDistance;
    const auto above = m_track.mapTo(m_window, QPoint(qRound(x), -distance));
    m_bubble->Show(above, timeText, chapter);
}

void LetPointerLook(Player& player, Previews& previews, SeekTrack& track, FancyList& list)
{
    new TrackPreview(player, previews, track, list.window());
    new ThumbScrub(player, previews, list);
}

void TrackPreview::Leave()
{
    m_isPointing = false;
    m_previews.Leave();
    m_bubble->hide();
}

void TrackPreview::ShowPicture()
{
    if (m_isPointing)
        m_bubble->SetPicture(m_previews.Picture(), m_previews.MayCome());
}

} // namespace zentaro
