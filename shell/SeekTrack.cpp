#include "shell/SeekTrack.h"

#include "shell/QtText.h"
#include "shell/Style.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

constexpr double kSlim = 4;         // px
constexpr double kUnderPointer = 6; // px
constexpr double kKnobRadius = 6;   // px
constexpr double kNotch = 2;        // px
constexpr double kChapterReach = 4; // px, from where a press means a chapter's start

} // namespace

SeekTrack::SeekTrack(QWidget* parent)
    : QWidget(parent)
{
    SliderAccessible::Install();
    setObjectName("IMGProgressBack");
    setAccessibleName("Position");
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::ArrowCursor);
}

void SeekTrack::Show(bool mediaControlsEnabled, double progress, double length, const std::vector<DiscPart>& chapters)
{
    m_mediaControlsEnabled = mediaControlsEnabled;
    if (std::exchange(m_length, length) != length || m_chapters != chapters) {
        m_chapters = chapters;
        update();
    }
    const auto before = m_bar.FillWidth();
    m_bar.SetProgress(progress * 100);
    if (m_bar.FillWidth() != before)
        update();
    FollowHand();
}

double SeekTrack::Value() const
{
    return m_bar.TrackWidth() > 0 ? m_bar.FillWidth() / m_bar.TrackWidth() * 100 : 0;
}

void SeekTrack::ChooseValue(double value)
{
    if (m_mediaControlsEnabled)
        Choose(value / 100);
}

void SeekTrack::Choose(std::optional<double> position)
{
    if (!position)
        return;
    update();
    emit PositionChosen(*position);
}

void SeekTrack::ShowTimeAt(const QPoint& global, double x)
{
    auto text = ToQString(m_bar.TimeUnder(x, m_length, m_mediaControlsEnabled));
    if (text.isEmpty()) {
        QToolTip::hideText();
        return;
    }
    const auto chapter = ChapterAt(m_chapters, ChapterMeant(x).value_or(TimeOf(x) / m_length) * m_length);
    if (chapter >= 0 && !m_chapters[static_cast<std::size_t>(chapter)].name.empty())
        text += '\n' + ToQString(m_chapters[static_cast<std::size_t>(chapter)].name);
    QToolTip::showText(global, text, this);
}

std::optional<double> SeekTrack::ChapterMeant(double x) const
{
    if (m_length <= 0 || m_bar.TrackWidth() <= 0)
        return std::nullopt;
    const auto near = ChapterNear(m_chapters, TimeOf(x), TimeOf(kChapterReach));
    return near >= 0 ? std::optional(m_chapters[static_cast<std::size_t>(near)].start / m_length) : std::nullopt;
}

void SeekTrack::FollowHand()
{
    const bool isNear = m_mediaControlsEnabled && (underMouse() || hasFocus());
    if (std::exchange(m_isNear, isNear) != isNear)
        m_nearness.Go(m_nearness.Share(), isNear ? 1 : 0);
}

bool SeekTrack::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        const bool isHandled = QWidget::event(event);
        FollowHand();
        return isHandled;
    }
    const auto* const help = static_cast<QHelpEvent*>(event);
    ShowTimeAt(help->globalPos(), help->pos().x());
    return true;
}

void SeekTrack::resizeEvent(QResizeEvent*)
{
    m_bar.SetTrackWidth(width());
}

void SeekTrack::mousePressEvent(QMouseEvent* event)
{
    const auto x = event->position().x();
    const bool isLeft = event->button() == Qt::LeftButton;
    m_heldOnFill = m_bar.IsOnFill(x);
    const auto place = m_heldOnFill ? m_bar.PointerOnFill(x, isLeft, m_mediaControlsEnabled)
                                    : m_bar.PressOnTrack(x, isLeft, m_mediaControlsEnabled);
    Choose(place && isLeft && ChapterMeant(x) ? ChapterMeant(x) : place);
}

void SeekTrack::mouseMoveEvent(QMouseEvent* event)
{
    const auto x = event->position().x();
    ShowTimeAt(event->globalPosition().toPoint(), x);
    if (event->buttons() == Qt::NoButton)
        return;
    const bool isLeft = event->buttons().testFlag(Qt::LeftButton);
    Choose(m_heldOnFill ? m_bar.PointerOnFill(x, isLeft, m_mediaControlsEnabled)
                        : m_bar.MoveOnTrack(x, isLeft, m_mediaControlsEnabled));
}

void SeekTrack::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Home)
        ChooseValue(0);
    else
        QWidget::keyPressEvent(event);
}

void SeekTrack::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const auto thickness = kSlim + (kUnderPointer - kSlim) * m_nearness.Share();
    QRectF track(0, (height() - thickness) / 2, width(), thickness);
    painter.setBrush(style::kTrack);
    painter.drawRoundedRect(track, thickness / 2, thickness / 2);
    track.setWidth(m_bar.FillWidth());
    painter.setBrush(style::kLight);
    painter.drawRoundedRect(track, thickness / 2, thickness / 2);
    PaintNotches(painter, QRectF(0, track.top(), width(), thickness));
    painter.setBrush(style::kLightHigh);
    const auto end = std::clamp(m_bar.FillWidth(), kKnobRadius, std::max(kKnobRadius, width() - kKnobRadius));
    const auto radius = kKnobRadius * m_nearness.Share();
    painter.drawEllipse(QPointF(end, height() / 2.0), radius, radius);
    if (hasFocus()) {
        painter.setPen(QPen(style::kLight, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), height() / 2.0, height() / 2.0);
    }
}

void SeekTrack::PaintNotches(QPainter& painter, const QRectF& track)
{
    if (m_length <= 0)
        return;
    painter.setBrush(style::kBase);
    for (const auto& chapter : m_chapters) {
        // The beginning needs no sign.
        if (chapter.start > 0 && chapter.start < m_length)
            painter.drawRect(
                QRectF(track.width() * chapter.start / m_length - kNotch / 2, track.top(), kNotch, track.height()));
    }
}

} // namespace zentaro
