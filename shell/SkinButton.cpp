#include "shell/SkinButton.h"

#include "shell/Style.h"

#include <QPainter>

namespace zentaro {

SkinButton::SkinButton(const QString& name, const QString& shortcut, QWidget* parent)
    : QAbstractButton(parent)
{
    setObjectName(name);
    setAccessibleName(name);
    setToolTip(shortcut.isEmpty() ? name : name + " (" + shortcut + ")");
    setCursor(Qt::ArrowCursor);
    // Keys go to the window; Tab still reaches the button.
    setFocusPolicy(Qt::TabFocus);
    // Repaints when the pointer comes and goes, and with it the window's picture below.
    setAttribute(Qt::WA_Hover);
}

ButtonState SkinButton::State() const
{
    if (!isEnabled())
        return ButtonState::Disabled;
    if (isDown())
        return ButtonState::Press;
    return underMouse() ? ButtonState::Over : ButtonState::Normal;
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
