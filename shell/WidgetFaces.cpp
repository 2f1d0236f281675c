#include "shell/WidgetFaces.h"

#include "shell/Style.h"

#include <QIcon>

#include <algorithm>

namespace zentaro {

namespace {

void DrawCheckMark(QPainter& painter, const QRectF& rect, const QColor& color)
{
    const Brushwork work(painter, QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin), Qt::NoBrush);
    painter.translate(rect.center());
    painter.drawPolyline(QPolygonF{ { -3.5, 0.25 }, { -1, 2.75 }, { 3.5, -2.5 } });
}

void DrawMenuMark(QPainter& painter, const QStyleOptionMenuItem& item)
{
    const QRect place(item.rect.left() + 8, item.rect.top(), kMenuText - 12, item.rect.height());
    if (item.checkType != QStyleOptionMenuItem::NotCheckable && item.checked) {
        DrawCheckMark(painter, place, IsEnabled(item) ? style::kLight : style::kFaintText);
    } else if (!item.icon.isNull()) {
        const auto mode = IsEnabled(item) ? QIcon::Normal : QIcon::Disabled;
        item.icon.paint(
            &painter, QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, { 16, 16 }, place), Qt::AlignCenter, mode);
    }
}

} // namespace

void DrawPlate(QPainter& painter, const QRect& rect, const QBrush& face, const QColor& edge, double radius)
{
    const Brushwork work(painter, edge.alpha() == 0 ? QPen(Qt::NoPen) : QPen(edge, 1), face);
    painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

void DrawChevron(QPainter& painter, const QRectF& rect, double degrees, const QColor& color, double size)
{
    const Brushwork work(painter, QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin), Qt::NoBrush);
    painter.translate(rect.center());
    painter.rotate(degrees);
    painter.drawPolyline(QPolygonF{ { -size, -size / 2 }, { 0, size / 2 }, { size, -size / 2 } });
}

void DrawFocus(QPainter& painter, const QRect& rect)
{
    DrawPlate(painter, rect, Qt::NoBrush, style::kLight);
}

void DrawWell(QPainter& painter, const QStyleOption& option, const QRect& rect)
{
    const bool isFocused = Has(option, QStyle::State_HasFocus) && IsEnabled(option);
    DrawPlate(painter, rect, IsEnabled(option) ? style::kBase : style::kBaseLight,
        isFocused               ? style::kLight
            : IsHovered(option) ? White(0.24)
                                : White(0.13));
}

void DrawPushFace(QPainter& painter, const QStyleOption& option, const QRect& rect, bool isDefault)
{
    const auto box = rect.adjusted(0, 0, 0, -1);
    if (!IsEnabled(option)) {
        DrawPlate(painter, box, White(0.03), White(0.07));
        return;
    }
    const bool isDown = Has(option, QStyle::State_Sunken) || Has(option, QStyle::State_On);
    QLinearGradient face(box.topLeft(), box.bottomLeft());
    face.setColorAt(0, isDown ? style::kBase : style::kRaisedHigh);
    face.setColorAt(1, isDown ? style::kBaseLight : style::kRaised);
    DrawPlate(painter, rect.adjusted(0, 1, 0, 0), QColor(0, 0, 0, isDown ? 0 : 90), Qt::transparent);
    DrawPlate(painter, box, face, isDown ? QColor(0, 0, 0, 140) : White(0.14));
    if (IsHovered(option) && !isDown) {
        QLinearGradient ember(box.topLeft(), box.bottomLeft());
        ember.setColorAt(0.2, Warm(0));
        ember.setColorAt(1, Warm(0.22));
        DrawPlate(painter, box, ember, Warm(0.5));
    }
    if (Has(option, QStyle::State_HasFocus) || isDefault)
        DrawPlate(painter, box, Qt::NoBrush, Has(option, QStyle::State_HasFocus) ? style::kLight : Warm(0.55));
}

void DrawIndicator(QPainter& painter, const QStyleOption& option, QRect rect, bool isRound)
{
    rect = QStyle::alignedRect(option.direction, Qt::AlignCenter, { kIndicatorSide, kIndicatorSide }, rect);
    const auto radius = isRound ? kIndicatorSide / 2.0 : 4.0;
    const bool isOn = Has(option, QStyle::State_On) || Has(option, QStyle::State_NoChange);
    painter.save();
    painter.setOpacity(IsEnabled(option) ? 1 : 0.4);
    const bool isDown = Has(option, QStyle::State_Sunken);
    const bool isLit = IsHovered(option) || Has(option, QStyle::State_HasFocus);
    const auto light = isDown ? style::kLightDeep : IsHovered(option) ? style::kLightHigh : style::kLight;
    DrawPlate(painter, rect, isOn ? light : style::kBase, isOn ? light : isLit ? Warm(0.8) : White(0.3), radius);
    if (isOn && isRound) {
        const Brushwork work(painter, Qt::NoPen, style::kBase);
        painter.drawEllipse(QRectF(rect).center(), 3, 3);
    } else if (Has(option, QStyle::State_NoChange)) {
        const Brushwork work(painter, QPen(style::kBase, 1.8, Qt::SolidLine, Qt::RoundCap), Qt::NoBrush);
        painter.drawLine(QRectF(rect).center() - QPointF(3, 0), QRectF(rect).center() + QPointF(3, 0));
    } else if (isOn) {
        DrawCheckMark(painter, rect, style::kBase);
    }
    painter.restore();
}

void DrawMenuItem(QPainter& painter, const QStyleOptionMenuItem& item, bool showMnemonics)
{
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        painter.fillRect(item.rect.left() + 10, item.rect.center().y(), item.rect.width() - 20, 1, White(0.09));
        return;
    }
    const bool isSelected = Has(item, QStyle::State_Selected) && IsEnabled(item);
    if (isSelected)
        DrawPlate(painter, item.rect.adjusted(4, 1, -4, -1), style::kSelection, White(0.05));
    DrawMenuMark(painter, item);
    const auto parts = item.text.split(u'\t');
    const int mnemonics = showMnemonics ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    const auto text = item.rect.adjusted(kMenuText, 0, -kMenuRight, 0);
    painter.setFont(item.font);
    painter.setPen(isSelected ? style::kSelected : TextColor(item));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | mnemonics, parts[0]);
    if (parts.size() > 1) {
        painter.setPen(isSelected && style::HasHighContrast() ? style::kSelected
                : IsEnabled(item)                             ? style::kSecondText
                                                              : style::kFaintText);
        painter.drawText(text.adjusted(0, 0, 14, 0), Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, parts[1]);
    }
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu) {
        const QRectF arrow(item.rect.right() - 26, item.rect.top(), 20, item.rect.height());
        DrawChevron(painter, arrow, -90, IsEnabled(item) ? style::kSecondText : style::kFaintText);
    }
}

void DrawSplitter(QPainter& painter, const QStyleOption& option)
{
    painter.fillRect(option.rect, style::kBaseLight);
    // The state tells how the splitter's parts lie: side by side, so the handle between them is upright.
    const bool isUpright = Has(option, QStyle::State_Horizontal);
    QRectF grip(0, 0, isUpright ? 2 : 28, isUpright ? 28 : 2);
    grip.moveCenter(QRectF(option.rect).center());
    const auto color = Has(option, QStyle::State_Sunken) ? style::kLight : IsHovered(option) ? Warm(0.8) : White(0.22);
    const Brushwork work(painter, Qt::NoPen, color);
    painter.drawRoundedRect(grip, 1, 1);
}

QRect ScrollThumb(const QStyleOptionSlider& bar)
{
    const bool isUpright = bar.orientation == Qt::Vertical;
    const int room = isUpright ? bar.rect.height() : bar.rect.width();
    const int range = bar.maximum - bar.minimum;
    const int length = range <= 0
        ? room
        : std::clamp(static_cast<int>(static_cast<qint64>(room) * bar.pageStep / (range + bar.pageStep)),
            std::min(kShortestThumb, room), room);
    const int at =
        QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, room - length, bar.upsideDown);
    return isUpright ? QRect(bar.rect.left(), bar.rect.top() + at, bar.rect.width(), length)
                     : QRect(bar.rect.left() + at, bar.rect.top(), length, bar.rect.height());
}

void DrawScrollBar(QPainter& painter, const QStyleOptionSlider& bar)
{
    const bool isDown = Has(bar, QStyle::State_Sunken) && bar.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
    const double inset = IsHovered(bar) || isDown ? 2 : 3;
    const auto color = isDown ? style::kLight : White(IsHovered(bar) ? 0.5 : 0.24);
    auto thumb = QRectF(ScrollThumb(bar));
    thumb =
        bar.orientation == Qt::Vertical ? thumb.adjusted(inset, 2, -inset, -2) : thumb.adjusted(2, inset, -2, -inset);
    const auto radius = std::min(thumb.width(), thumb.height()) / 2;
    const Brushwork work(painter, Qt::NoPen, color);
    painter.drawRoundedRect(thumb, radius, radius);
}

} // namespace zentaro
