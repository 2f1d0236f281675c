#include "shell/SkinButton.h"

#include "shell/Style.h"

#include <QCursor>
#include <QPainter>

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
    painter.setPen(QPen(style::kLight, 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

} // namespace zentaro
