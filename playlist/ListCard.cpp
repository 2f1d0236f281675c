#include "playlist/ListCard.h"

#include "playlist/FancyListPainter.h"

#include <QPainter>

#include <algorithm>

namespace zentaro {

namespace {

constexpr int kMargin = 16;
constexpr int kPadding = 14;
constexpr int kWidest = 340;
constexpr int kFontHeight = 17;
constexpr int kTextFlags = Qt::AlignHCenter | Qt::TextWordWrap;

} // namespace

ListCard::ListCard(QWidget* parent)
    : QAbstractButton(parent)
{
    setFont(FancyListFont(kFontHeight));
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    hide();
}

void ListCard::Show(const QString& text, const QRect& area)
{
    setText(text);
    const int width = std::min(kWidest, area.width() - 2 * kMargin);
    const QRect room(0, 0, width - 2 * kPadding, area.height());
    const int height = fontMetrics().boundingRect(room, kTextFlags, text).height() + 2 * kPadding;
    setGeometry(area.center().x() - width / 2, std::max(kMargin, area.center().y() - height - kMargin), width, height);
    setVisible(!text.isEmpty() && width > 2 * kPadding && height + kMargin < area.height());
}

void ListCard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    auto fill = palette().color(QPalette::ButtonText);
    fill.setAlphaF(isDown() ? 0.04F : underMouse() ? 0.14F : 0.07F);
    auto edge = palette().color(QPalette::ButtonText);
    edge.setAlphaF(0.16F);
    painter.setPen(hasFocus() ? QPen(QColor(kWarmLight), 1.5) : QPen(edge));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 8, 8);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(rect().adjusted(kPadding, kPadding, -kPadding, -kPadding), kTextFlags, text());
}

} // namespace zentaro
