#include "playlist/ListFoot.h"

#include "playlist/FancyListPainter.h"

#include <QPainter>

namespace zentaro {

namespace {

constexpr int kHeight = 24;
constexpr int kMargin = 8;
constexpr int kFontHeight = 14;

} // namespace

ListFoot::ListFoot(QWidget* parent)
    : QWidget(parent)
{
    setFont(FancyListFont(kFontHeight));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void ListFoot::SetText(const QString& text, bool isFinding)
{
    m_text = text;
    m_isFinding = isFinding;
    setAccessibleName(text);
    setVisible(!text.isEmpty());
    update();
}

QSize ListFoot::sizeHint() const
{
    return { 0, kHeight };
}

void ListFoot::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Button));
    if (m_isFinding)
        painter.fillRect(0, 0, width(), 2, QColor(kWarmLight));
    auto color = palette().color(QPalette::ButtonText);
    color.setAlphaF(m_isFinding ? 1.0F : 0.7F);
    painter.setPen(color);
    const auto place = rect().adjusted(kMargin, 0, -kMargin, 0);
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft,
        fontMetrics().elidedText(m_text, m_isFinding ? Qt::ElideLeft : Qt::ElideRight, place.width()));
}

} // namespace zentaro
