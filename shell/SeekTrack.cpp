#include "shell/SeekTrack.h"

#include "shell/QtText.h"
#include "shell/Style.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace zentaro {

namespace {

constexpr double kSlim = 4;         // px
constexpr double kUnderPointer = 6; // px
constexpr double kKnobRadius = 6;   // px
constexpr double kRingMargin = 4.5; // px, over and under the ring of the focus
constexpr double kNotch = 2;        // px
constexpr double kChapterReach = 4; // px, from where a press means a chapter's start
constexpr auto kRest = std::chrono::milliseconds(120);
constexpr double kBeforeEnd = 5000; // ms that are left after a jump to the end

} // namespace

SeekTrack::SeekTrack(QWidget* parent)
    : QWidget(parent)
{
    SliderAccessible::Install();
    setObjectName("IMGProgressBack");
    setAccessibleName(tr("Position"));
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::ArrowCursor);
    m_rest.setSingleShot(true);
    m_rest.setInterval(kRest);
    connect(&m_rest, &QTimer::timeout, this, &SeekTrack::HandRests);
}

void SeekTrack::Show(const Place& place)
{
    const bool hasJumped = place.seeks != m_place.seeks && place.seeks > 0;
    const bool isOther = m_place.length != place.length || m_place.chapters != place.chapters
        || m_place.mediaControlsEnabled != place.mediaControlsEnabled;
    if (isOther)
        update();
    m_place = place;
    if (isOther && m_pointer)
        PointAt(*m_pointer);
    const auto before = m_bar.FillWidth();
    if (!place.mediaControlsEnabled)
        m_passing.reset();
    m_bar.SetProgress(m_passing.value_or(place.progress) * 100);
    if (m_bar.FillWidth() != before)
        update();
    FollowHand();
    if (hasJumped)
        SliderAccessible::TellValue(*this, *this);
}

double SeekTrack::Maximum() const
{
    return m_place.length > 0 ? std::round(m_place.length / 1000) : 100;
}

double SeekTrack::Value() const
{
    return std::round(m_place.progress * Maximum());
}

void SeekTrack::ChooseValue(double value)
{
    if (m_place.mediaControlsEnabled && Maximum() > 0)
        Choose(value / Maximum());
}

void SeekTrack::Choose(std::optional<double> position)
{
    if (!position)
        return;
    m_passing.reset();
    update();
    emit PositionChosen(*position);
}

// An engine that went to each place on the way would show few of them, and leave no time for the pictures over the
// track, which follow the hand.
void SeekTrack::ChooseInPassing(std::optional<double> position)
{
    if (!position || !m_place.takesTime)
        return Choose(position);
    m_passing = position;
    update();
    m_rest.start();
}

void SeekTrack::HandRests()
{
    m_rest.stop();
    Choose(m_passing);
}

void SeekTrack::PointAt(double x)
{
    const auto text = m_bar.TimeUnder(x, m_place.length, m_place.mediaControlsEnabled);
    if (text.empty())
        return PointNowhere();
    m_pointer = x;
    const auto time = ChapterMeant(x).value_or(std::max(TimeOf(x), 0.0) / m_place.length) * m_place.length;
    const auto chapter = ChapterAt(m_place.chapters, time);
    emit PointedAt(x, time, ToQString(text),
        chapter >= 0 ? ToQString(m_place.chapters[static_cast<std::size_t>(chapter)].name) : QString());
}

void SeekTrack::PointNowhere()
{
    if (std::exchange(m_pointer, std::nullopt))
        emit PointerLeft();
}

std::optional<double> SeekTrack::ChapterMeant(double x) const
{
    if (m_place.length <= 0 || m_bar.TrackWidth() <= 0)
        return std::nullopt;
    const auto near = ChapterNear(m_place.chapters, TimeOf(x), TimeOf(kChapterReach));
    return near >= 0 ? std::optional(m_place.chapters[static_cast<std::size_t>(near)].start / m_place.length)
                     : std::nullopt;
}

void SeekTrack::FollowHand()
{
    const bool isNear = m_place.mediaControlsEnabled && (underMouse() || hasFocus());
    if (std::exchange(m_isNear, isNear) != isNear)
        m_nearness.Go(m_nearness.Share(), isNear ? 1 : 0);
}

bool SeekTrack::event(QEvent* event)
{
    const bool isHandled = QWidget::event(event);
    FollowHand();
    return isHandled;
}

void SeekTrack::leaveEvent(QEvent*)
{
    PointNowhere();
}

void SeekTrack::hideEvent(QHideEvent*)
{
    PointNowhere();
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
    const auto place = m_heldOnFill ? m_bar.PointerOnFill(x, isLeft, m_place.mediaControlsEnabled)
                                    : m_bar.PressOnTrack(x, isLeft, m_place.mediaControlsEnabled);
    Choose(place && isLeft && ChapterMeant(x) ? ChapterMeant(x) : place);
}

void SeekTrack::mouseMoveEvent(QMouseEvent* event)
{
    const auto x = event->position().x();
    PointAt(x);
    if (event->buttons() == Qt::NoButton)
        return;
    const bool isLeft = event->buttons().testFlag(Qt::LeftButton);
    ChooseInPassing(m_heldOnFill ? m_bar.PointerOnFill(x, isLeft, m_place.mediaControlsEnabled)
                                 : m_bar.MoveOnTrack(x, isLeft, m_place.mediaControlsEnabled));
}

void SeekTrack::mouseReleaseEvent(QMouseEvent*)
{
    HandRests();
}

void SeekTrack::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Home)
        ChooseValue(0);
    else if (event->key() == Qt::Key_End && m_place.mediaControlsEnabled && m_place.length > 0)
        Choose(std::max(1 - kBeforeEnd / m_place.length, m_place.progress));
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
        const auto ring = QRectF(rect()).adjusted(0.5, kRingMargin, -0.5, -kRingMargin);
        painter.drawRoundedRect(ring, ring.height() / 2, ring.height() / 2);
    }
}

void SeekTrack::PaintNotches(QPainter& painter, const QRectF& track)
{
    if (m_place.length <= 0)
        return;
    painter.setBrush(style::kBase);
    for (const auto& chapter : m_place.chapters) {
        // The beginning needs no sign.
        if (chapter.start > 0 && chapter.start < m_place.length)
            painter.drawRect(QRectF(
                track.width() * chapter.start / m_place.length - kNotch / 2, track.top(), kNotch, track.height()));
    }
}

} // namespace zentaro
