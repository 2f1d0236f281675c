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

void SeekTrack::Show(bool mediaControlsEnabled, double progress, double length)
{
    m_mediaControlsEnabled = mediaControlsEnabled;
    m_length = length;
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
    const auto time = m_bar.TimeUnder(x, m_length, m_mediaControlsEnabled);
    if (time.empty())
        QToolTip::hideText();
    else
        QToolTip::showText(global, ToQString(time), this);
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
    Choose(m_heldOnFill ? m_bar.PointerOnFill(x, isLeft, m_mediaControlsEnabled)
                        : m_bar.PressOnTrack(x, isLeft, m_mediaControlsEnabled));
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

} // namespace zentaro
