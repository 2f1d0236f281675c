#include "shell/SkinButton.h"

#include "shell/Style.h"

#include <QCursor>
#include <QPainter>

#include <utility>

namespace zentaro {

SkinButton::SkinButton(const QString& name, const QString& shortcut, QWidget* parent)
    : QAbstractButton(parent)
{
    setObjectName(name);
    SetName(name, shortcut);
    setCursor(Qt::ArrowCursor);
    // Keys go to the window; Tab still reaches the button.
    setFocusPolicy(Qt::TabFocus);
    // Repaints when the pointer comes and goes, and with it the window's picture below.
    setAttribute(Qt::WA_Hover);
    m_fade.Go(1, 1);
}

bool SkinButton::event(QEvent* event)
{
    const bool isHandled = QAbstractButton::event(event);
    if (const auto state = State(); state != m_now) {
        m_before = std::exchange(m_now, state);
        m_fade.Go(0, 1);
    }
    return isHandled;
}

void SkinButton::SetName(const QString& name, const QString& shortcut)
{
    setAccessibleName(name);
    setToolTip(shortcut.isEmpty() ? name : name + " (" + shortcut + ")");
}

ButtonState SkinButton::State() const
{
    if (!isEnabled())
        return ButtonState::Disabled;
    if (isDown())
        return ButtonState::Press;
    // A press keeps the pointer's leaving from the button until it is released.
    const bool isUnderPointer = underMouse() && rect().contains(mapFromGlobal(QCursor::pos()));
    return isUnderPointer ? ButtonState::Over : ButtonState::Normal;
}

void SkinButton::paintEvent(QPaintEvent*)
{
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style::kLight, 1.5));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
}

} // namespace zentaro
