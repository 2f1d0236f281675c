#include "shell/VolumeKnob.h"

#include "base/Numbers.h"
#include "shell/Style.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

namespace zentaro {

namespace {

constexpr double kKnobWidth = 7;   // px; the slider's arithmetic keeps the knob's middle under the pointer
constexpr double kKnobHeight = 14; // px
constexpr double kRest = 3;        // px, right of the knob at full volume: nothing is left to turn up there
constexpr double kTrackHeight = 4; // px

} // namespace

VolumeKnob::VolumeKnob(QWidget* parent)
    : QWidget(parent)
{
    SliderAccessible::Install();
    setObjectName("ImgSlider");
    setAccessibleName(tr("Volume"));
    setToolTip(tr("Volume"));
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::ArrowCursor);
}

void VolumeKnob::Show(int percent)
{
    if (percent == m_toldVolume)
        return;
    m_toldVolume = percent;
    m_slider.SetVolume(percent);
    update();
    SliderAccessible::TellValue(*this, *this);
}

void VolumeKnob::PointAt(double x)
{
    if (const auto percent = m_slider.PointerOnSlider(x)) {
        update();
        emit VolumeChosen(*percent);
    }
}

void VolumeKnob::resizeEvent(QResizeEvent*)
{
    m_slider.SetScaleWidth(width());
}

void VolumeKnob::mousePressEvent(QMouseEvent* event)
{
    PointAt(event->position().x());
}

void VolumeKnob::mouseMoveEvent(QMouseEvent* event)
{
    PointAt(event->position().x());
}

void VolumeKnob::wheelEvent(QWheelEvent* event)
{
    emit Turned(event->angleDelta().y());
    event->accept();
}

void VolumeKnob::ChooseValue(double value)
{
    emit VolumeChosen(RoundHalfEven(value));
}

void VolumeKnob::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Down)
        emit StepChosen(-1);
    else if (event->key() == Qt::Key_Right || event->key() == Qt::Key_Up)
        emit StepChosen(1);
    else if (event->key() == Qt::Key_Home || event->key() == Qt::Key_End)
        emit VolumeChosen(event->key() == Qt::Key_Home ? 0 : 100);
    else
        QWidget::keyPressEvent(event);
}

void VolumeKnob::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const auto middle = height() / 2.0;
    const QRectF track(0, middle - kTrackHeight / 2, width() - kRest, kTrackHeight);
    painter.setBrush(style::kTrack);
    painter.drawRoundedRect(track, kTrackHeight / 2, kTrackHeight / 2);
    const auto knobLeft = m_slider.KnobLeft();
    auto loud = track;
    loud.setWidth(knobLeft + kKnobWidth / 2);
    // The warm light is the seek track's; here it only answers the hand.
    const bool isLit = underMouse() || hasFocus();
    painter.setBrush(isLit ? style::kLight : style::kSecondText);
    painter.drawRoundedRect(loud, kTrackHeight / 2, kTrackHeight / 2);
    painter.setBrush(isLit ? style::kLightHigh : style::kText);
    painter.drawRoundedRect(QRectF(knobLeft, middle - kKnobHeight / 2, kKnobWidth, kKnobHeight), 2.5, 2.5);
    if (hasFocus()) {
        painter.setPen(QPen(style::kLight, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    }
}

} // namespace zentaro
