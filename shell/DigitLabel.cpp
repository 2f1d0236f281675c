#include "shell/DigitLabel.h"

#include "shell/Style.h"

#include <QPainter>
#include <QStyle>

namespace zentaro {

// The typeface has digits of one width, but only as an option that Qt cannot switch on. So this label draws each digit
// by itself, in a place as wide as the widest of them.
DigitLabel::DigitLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setFont(style::TimeFont());
}

int DigitLabel::WidthOf(QChar c) const
{
    // Of all digits the zero is the widest.
    return fontMetrics().horizontalAdvance(c.isDigit() ? u'0' : c);
}

QSize DigitLabel::sizeHint() const
{
    int width = 0;
    for (const auto c : text())
        width += WidthOf(c);
    return { width, fontMetrics().height() };
}

void DigitLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    auto place = QStyle::alignedRect(layoutDirection(), alignment(), sizeHint(), contentsRect());
    for (const auto c : text()) {
        place.setWidth(WidthOf(c));
        painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, QString(c));
        place.moveLeft(place.left() + place.width());
    }
}

} // namespace zentaro
