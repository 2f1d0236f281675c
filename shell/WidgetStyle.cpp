#include "shell/WidgetStyle.h"

#include "shell/Style.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace zentaro {

namespace {

constexpr double kRadius = 5;
constexpr int kIndicator = 16;      // px, check boxes and radio buttons
constexpr int kMenuItemHeight = 28; // px
constexpr int kMenuText = 34;       // px, where a menu's text begins: icons and marks lie before it
constexpr int kMenuRight = 30;      // px, for the arrow of a submenu
constexpr int kMenuSeparator = 9;   // px
constexpr int kScrollBar = 12;      // px
constexpr int kShortestThumb = 28;  // px
constexpr int kFieldHeight = 28;    // px
constexpr int kSpinWidth = 20;      // px

bool Has(const QStyleOption& option, QStyle::StateFlag flag)
{
    return option.state.testFlag(flag);
}

bool IsEnabled(const QStyleOption& option)
{
    return Has(option, QStyle::State_Enabled);
}

bool IsHovered(const QStyleOption& option)
{
    return IsEnabled(option) && Has(option, QStyle::State_MouseOver);
}

QColor White(double alpha)
{
    return QColor::fromRgbF(1, 1, 1, static_cast<float>(alpha));
}

QColor Warm(double alpha)
{
    auto color = style::kLight;
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

/// What is drawn in it is smooth, and leaves the painter as it was.
class Brushwork {
public:
    Brushwork(QPainter& painter, const QPen& pen, const QBrush& brush)
        : m_painter(painter)
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(pen);
        painter.setBrush(brush);
    }
    ~Brushwork() { m_painter.restore(); }
    Q_DISABLE_COPY_MOVE(Brushwork)

private:
    QPainter& m_painter;
};

/// A line of one pixel follows the inner side of the rectangle.
void DrawPlate(QPainter& painter, const QRect& rect, const QBrush& face, const QColor& edge, double radius = kRadius)
{
    const Brushwork work(painter, edge.alpha() == 0 ? QPen(Qt::NoPen) : QPen(edge, 1), face);
    painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

/// A small arrowhead in the middle of the rectangle.
void DrawChevron(QPainter& painter, const QRectF& rect, double degrees, const QColor& color, double size = 3.5)
{
    const Brushwork work(painter, QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin), Qt::NoBrush);
    painter.translate(rect.center());
    painter.rotate(degrees);
    painter.drawPolyline(QPolygonF{ { -size, -size / 2 }, { 0, size / 2 }, { size, -size / 2 } });
}

void DrawCheckMark(QPainter& painter, const QRectF& rect, const QColor& color)
{
    const Brushwork work(painter, QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin), Qt::NoBrush);
    painter.translate(rect.center());
    painter.drawPolyline(QPolygonF{ { -3.5, 0.25 }, { -1, 2.75 }, { 3.5, -2.5 } });
}

void DrawFocus(QPainter& painter, const QRect& rect)
{
    DrawPlate(painter, rect, Qt::NoBrush, style::kLight);
}

/// What text is typed into, and what scrolls: it lies deeper than its surroundings.
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
    rect = QStyle::alignedRect(option.direction, Qt::AlignCenter, { kIndicator, kIndicator }, rect);
    const auto radius = isRound ? kIndicator / 2.0 : 4.0;
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

QColor TextColor(const QStyleOption& option)
{
    return IsEnabled(option) ? style::kText : style::kFaintText;
}

void DrawMenuMark(QPainter& painter, const QStyleOptionMenuItem& item)
{
    const QRect place(item.rect.left() + 8, item.rect.top(), kMenuText - 12, item.rect.height());
    if (item.checkType != QStyleOptionMenuItem::NotCheckable && item.checked) {
        const auto color = IsEnabled(item) ? style::kLight : style::kFaintText;
        if (item.checkType == QStyleOptionMenuItem::Exclusive) {
            const Brushwork work(painter, Qt::NoPen, color);
            painter.drawEllipse(QRectF(place).center(), 3, 3);
        } else {
            DrawCheckMark(painter, place, color);
        }
    } else if (!item.icon.isNull()) {
        const auto mode = IsEnabled(item) ? QIcon::Normal : QIcon::Disabled;
        item.icon.paint(
            &painter, QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, { 16, 16 }, place), Qt::AlignCenter, mode);
    }
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
    painter.setPen(TextColor(item));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | mnemonics, parts[0]);
    if (parts.size() > 1) {
        painter.setPen(IsEnabled(item) ? style::kSecondText : style::kFaintText);
        painter.drawText(text.adjusted(0, 0, 14, 0), Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, parts[1]);
    }
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu) {
        const QRectF arrow(item.rect.right() - 26, item.rect.top(), 20, item.rect.height());
        DrawChevron(painter, arrow, -90, IsEnabled(item) ? style::kSecondText : style::kFaintText);
    }
}

void DrawTab(QPainter& painter, const QStyleOptionTab& tab)
{
    const bool isSelected = Has(tab, QStyle::State_Selected);
    const auto face = tab.rect.adjusted(1, 2, -1, -3);
    if (!isSelected && IsHovered(tab))
        DrawPlate(painter, face, White(0.05), Qt::transparent);
    if (isSelected) {
        const Brushwork work(painter, Qt::NoPen, style::kLight);
        painter.drawRoundedRect(QRectF(tab.rect.left() + 8, tab.rect.bottom() - 1.0, tab.rect.width() - 16, 2), 1, 1);
    }
    if (Has(tab, QStyle::State_HasFocus))
        DrawFocus(painter, face);
}

void DrawSplitter(QPainter& painter, const QStyleOption& option)
{
    painter.fillRect(option.rect, style::kBaseLight);
    // The state tells the splitter's direction, not the handle's.
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
    if (bar.maximum <= bar.minimum)
        return;
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

void DrawSlider(QPainter& painter, const QStyleOptionSlider& slider, const QRectF& handle)
{
    const bool isUpright = slider.orientation == Qt::Vertical;
    auto groove = QRectF(slider.rect);
    groove = isUpright ? QRectF(groove.center().x() - 2, groove.top(), 4, groove.height())
                       : QRectF(groove.left(), groove.center().y() - 2, groove.width(), 4);
    auto filled = groove;
    isUpright ? filled.setTop(handle.center().y()) : filled.setRight(handle.center().x());
    const Brushwork work(painter, Qt::NoPen, style::kTrack);
    painter.drawRoundedRect(groove, 2, 2);
    painter.setBrush(IsEnabled(slider) ? style::kLight : White(0.2));
    painter.drawRoundedRect(filled, 2, 2);
    const bool isLit = IsHovered(slider) || Has(slider, QStyle::State_HasFocus);
    painter.setBrush(IsEnabled(slider) ? isLit ? style::kLightHigh : style::kText : style::kFaintText);
    painter.drawEllipse(handle.center(), 6, 6);
}

void DrawProgress(QPainter& painter, const QStyleOptionProgressBar& bar)
{
    const QRectF groove(bar.rect.left(), bar.rect.center().y() - 2, bar.rect.width(), 4);
    const Brushwork work(painter, Qt::NoPen, style::kTrack);
    painter.drawRoundedRect(groove, 2, 2);
    const double done =
        bar.maximum > bar.minimum ? (bar.progress - bar.minimum) / static_cast<double>(bar.maximum - bar.minimum) : 0.0;
    painter.setBrush(style::kLight);
    painter.drawRoundedRect(QRectF(groove.left(), groove.top(), groove.width() * std::clamp(done, 0.0, 1.0), 4), 2, 2);
}

/// The sign of a message: a disc with a letter of light or a triangle with one of alarm.
QIcon MessageIcon(QStyle::StandardPixmap picture)
{
    constexpr int kSize = 48;
    constexpr int kDensity = 3;
    QPixmap pixmap(kSize * kDensity, kSize * kDensity);
    pixmap.setDevicePixelRatio(kDensity);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const bool isAlarm = picture == QStyle::SP_MessageBoxCritical;
    const Brushwork work(painter, QPen(isAlarm ? style::kAlarm : style::kLight, 3), style::kBase);
    painter.drawEllipse(QRectF(4, 4, 40, 40));
    painter.setPen(QPen(isAlarm ? style::kAlarm : style::kLight, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    if (picture == QStyle::SP_MessageBoxQuestion) {
        QPainterPath hook({ 18.5, 19 });
        hook.cubicTo(19, 10.5, 30.5, 11.5, 29.5, 19);
        hook.cubicTo(29, 23, 24, 22.5, 24, 27);
        painter.drawPath(hook);
        painter.drawPoint(QPointF(24, 34));
    } else if (picture == QStyle::SP_MessageBoxInformation) {
        painter.drawPoint(QPointF(24, 15));
        painter.drawLine(QPointF(24, 22), QPointF(24, 34));
    } else {
        painter.drawLine(QPointF(24, 14), QPointF(24, 26));
        painter.drawPoint(QPointF(24, 33.5));
    }
    return QIcon(pixmap);
}

/// What the toolkit's own dialogs show on buttons and before files, on a field of 24 by 24; nothing for other signs.
QPainterPath DialogSign(QStyle::StandardPixmap picture)
{
    QPainterPath path;
    const auto line = [&](std::initializer_list<QPointF> points) { path.addPolygon(QPolygonF(points)); };
    const auto folder = [&] {
        line({ { 3.5, 18.5 }, { 3.5, 5.5 }, { 9.5, 5.5 }, { 11.5, 8 }, { 20.5, 8 }, { 20.5, 18.5 }, { 3.5, 18.5 } });
    };
    switch (picture) {
    case QStyle::SP_ArrowLeft:
    case QStyle::SP_ArrowBack:
    case QStyle::SP_FileDialogBack:
        line({ { 14.5, 6 }, { 8.5, 12 }, { 14.5, 18 } });
        break;
    case QStyle::SP_ArrowRight:
    case QStyle::SP_ArrowForward:
        line({ { 9.5, 6 }, { 15.5, 12 }, { 9.5, 18 } });
        break;
    case QStyle::SP_FileDialogToParent:
        line({ { 6.5, 11 }, { 12, 5.5 }, { 17.5, 11 } });
        line({ { 12, 5.5 }, { 12, 18.5 } });
        break;
    case QStyle::SP_FileDialogNewFolder:
        folder();
        line({ { 12, 10.5 }, { 12, 16 } });
        line({ { 9.25, 13.25 }, { 14.75, 13.25 } });
        break;
    case QStyle::SP_FileDialogDetailedView:
        for (const double y : { 6.5, 12.0, 17.5 })
            line({ { 4.5, y }, { 19.5, y } });
        break;
    case QStyle::SP_FileDialogListView:
        for (const double y : { 5.0, 14.0 }) {
            path.addRoundedRect(5, y, 5, 5, 1, 1);
            path.addRoundedRect(14, y, 5, 5, 1, 1);
        }
        break;
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirClosedIcon:
    case QStyle::SP_DirOpenIcon:
    case QStyle::SP_DirHomeIcon:
    case QStyle::SP_DirLinkIcon:
        folder();
        break;
    case QStyle::SP_FileIcon:
    case QStyle::SP_FileLinkIcon:
        line({ { 6, 3.5 }, { 13.5, 3.5 }, { 18, 8 }, { 18, 20.5 }, { 6, 20.5 }, { 6, 3.5 } });
        line({ { 13.5, 3.5 }, { 13.5, 8 }, { 18, 8 } });
        break;
    case QStyle::SP_ComputerIcon:
    case QStyle::SP_DesktopIcon:
        path.addRoundedRect(3.5, 4.5, 17, 11.5, 1.5, 1.5);
        line({ { 8, 19.5 }, { 16, 19.5 } });
        break;
    case QStyle::SP_DriveHDIcon:
    case QStyle::SP_DriveNetIcon:
    case QStyle::SP_DriveCDIcon:
        path.addRoundedRect(3.5, 8.5, 17, 7.5, 1.5, 1.5);
        line({ { 16.5, 12.25 }, { 17, 12.25 } });
        break;
    default:
        break;
    }
    return path;
}

QIcon DialogIcon(const QPainterPath& sign)
{
    constexpr int kSize = 24;
    constexpr int kDensity = 4;
    QPixmap pixmap(kSize * kDensity, kSize * kDensity);
    pixmap.setDevicePixelRatio(kDensity);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const Brushwork work(painter, QPen(style::kText, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin), Qt::NoBrush);
    painter.drawPath(sign);
    return QIcon(pixmap);
}

} // namespace

WidgetStyle::WidgetStyle()
    : QProxyStyle(QStyleFactory::create("Fusion"))
{
}

void WidgetStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QAbstractItemView*>(widget) != nullptr || widget->inherits("QTabBar"))
        widget->setAttribute(Qt::WA_Hover);
}

int WidgetStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return kIndicator;
    case PM_ScrollBarExtent:
        return kScrollBar;
    case PM_ScrollBarSliderMin:
        return kShortestThumb;
    case PM_MenuPanelWidth:
    case PM_DefaultFrameWidth:
        return 1;
    case PM_MenuVMargin:
        return 4;
    case PM_HeaderMargin:
        return 8;
    case PM_MenuHMargin:
    case PM_ScrollView_ScrollBarSpacing:
        return 0;
    case PM_ToolTipLabelFrameWidth:
        return 6;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 8;
    case PM_SliderLength:
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        return 16;
    case PM_TabBarTabHSpace:
        return 28;
    case PM_TabBarTabVSpace:
        return 14;
    case PM_TabBarTabShiftVertical:
    case PM_ButtonShiftHorizontal:
        return 0;
    case PM_ButtonShiftVertical:
        return 1;
    case PM_MessageBoxIconSize:
        return 48;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int WidgetStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* answer) const
{
    switch (hint) {
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_ComboBox_Popup:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_ToolTipLabel_Opacity:
        return 255;
    case SH_ScrollBar_Transient:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }
}

QSize WidgetStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const
{
    if (type == CT_MenuItem) {
        const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        if (item != nullptr && item->menuItemType == QStyleOptionMenuItem::Separator)
            return { size.width(), kMenuSeparator };
        const bool hasShortcut = item != nullptr && item->text.contains(u'\t');
        return { size.width() + kMenuText + kMenuRight + (hasShortcut ? 12 : 0),
            std::max(kMenuItemHeight, size.height()) };
    }
    const auto result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_PushButton)
        return result.expandedTo({ 87, 30 });
    if (type == CT_LineEdit || type == CT_ComboBox || type == CT_SpinBox)
        return { result.width() + 8, kFieldHeight };
    if (type == CT_ItemViewItem)
        return result.expandedTo({ 0, 24 });
    return result;
}

QRect WidgetStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl part, const QWidget* widget) const
{
    const auto& rect = option->rect;
    if (const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar != nullptr && control == CC_ScrollBar) {
        const auto thumb = ScrollThumb(*bar);
        const bool isUpright = bar->orientation == Qt::Vertical;
        auto before = rect;
        auto after = rect;
        isUpright ? before.setBottom(thumb.top() - 1) : before.setRight(thumb.left() - 1);
        isUpright ? after.setTop(thumb.bottom() + 1) : after.setLeft(thumb.right() + 1);
        switch (part) {
        case SC_ScrollBarSlider:
            return thumb;
        case SC_ScrollBarSubPage:
            return before;
        case SC_ScrollBarAddPage:
            return after;
        case SC_ScrollBarGroove:
            return rect;
        default:
            return {}; // no arrows
        }
    }
    if (control == CC_SpinBox) {
        const int middle = rect.height() / 2;
        switch (part) {
        case SC_SpinBoxUp:
            return { rect.right() - kSpinWidth, rect.top() + 1, kSpinWidth, middle - 1 };
        case SC_SpinBoxDown:
            return { rect.right() - kSpinWidth, rect.top() + middle, kSpinWidth, rect.height() - middle - 1 };
        case SC_SpinBoxEditField:
            return rect.adjusted(2, 1, -kSpinWidth - 1, -1);
        default:
            return rect;
        }
    }
    const auto place = QProxyStyle::subControlRect(control, option, part, widget);
    if (control == CC_GroupBox && (part == SC_GroupBoxLabel || part == SC_GroupBoxCheckBox))
        return place.translated(10, 5);
    if (control == CC_GroupBox && part == SC_GroupBoxContents)
        return place.adjusted(0, 5, 0, 0);
    if (control == CC_ComboBox && part == SC_ComboBoxEditField)
        return place.adjusted(4, 0, 0, 0);
    return place;
}

QRect WidgetStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    const auto place = QProxyStyle::subElementRect(element, option, widget);
    return element == SE_LineEditContents ? place.adjusted(4, 0, -4, 0) : place;
}

QPixmap WidgetStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const
{
    // A selected line is no reason to dye its icon.
    return mode == QIcon::Disabled ? QProxyStyle::generatedIconPixmap(mode, pixmap, option) : pixmap;
}

void WidgetStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    const auto& rect = option->rect;
    switch (element) {
    case PE_FrameFocusRect:
        // Item views show where the keys are by their selection.
        if (qobject_cast<const QAbstractItemView*>(widget) == nullptr)
            DrawFocus(*painter, rect);
        return;
    case PE_PanelButtonCommand: {
        const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
        const bool isDefault = button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
        const bool isFlat = button != nullptr && button->features.testFlag(QStyleOptionButton::Flat);
        if (!isFlat || IsHovered(*option) || Has(*option, State_Sunken))
            DrawPushFace(*painter, *option, rect, isDefault);
        return;
    }
    case PE_PanelButtonTool:
        if (Has(*option, State_Sunken) || Has(*option, State_On))
            DrawPlate(*painter, rect, QColor(0, 0, 0, 90), White(0.06));
        else if (IsHovered(*option))
            DrawPlate(*painter, rect, White(0.08), Warm(0.35));
        return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        DrawIndicator(*painter, *option, rect, false);
        return;
    case PE_IndicatorRadioButton:
        DrawIndicator(*painter, *option, rect, true);
        return;
    case PE_PanelLineEdit: {
        const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (frame != nullptr && frame->lineWidth > 0)
            DrawWell(*painter, *option, rect);
        return;
    }
    case PE_FrameLineEdit:
        return;
    case PE_Frame: {
        const auto focused = Has(*option, State_HasFocus);
        DrawPlate(*painter, rect, Qt::NoBrush, focused ? Warm(0.7) : White(0.11), 2);
        return;
    }
    case PE_FrameGroupBox:
    case PE_FrameTabWidget:
        DrawPlate(*painter, rect, White(0.02), White(0.09));
        return;
    case PE_FrameTabBarBase:
        painter->fillRect(rect.left(), rect.bottom(), rect.width(), 1, White(0.09));
        return;
    case PE_PanelMenu:
        painter->fillRect(rect, style::kRaised);
        return;
    case PE_FrameMenu:
        DrawPlate(*painter, rect, Qt::NoBrush, White(0.14), 0);
        return;
    case PE_PanelTipLabel:
        painter->fillRect(rect, style::kRaised);
        DrawPlate(*painter, rect, Qt::NoBrush, White(0.16), 0);
        return;
    case PE_PanelItemViewRow:
        return;
    case PE_PanelItemViewItem:
        if (Has(*option, State_Selected))
            painter->fillRect(rect, style::kSelection);
        else if (IsHovered(*option))
            painter->fillRect(rect, White(0.05));
        return;
    case PE_IndicatorBranch:
        if (Has(*option, State_Children))
            DrawChevron(*painter, rect, Has(*option, State_Open) ? 0 : -90, style::kSecondText);
        return;
    case PE_IndicatorHeaderArrow:
        if (const auto* const header = qstyleoption_cast<const QStyleOptionHeader*>(option))
            DrawChevron(
                *painter, rect, header->sortIndicator == QStyleOptionHeader::SortUp ? 180 : 0, style::kSecondText, 3);
        return;
    case PE_IndicatorArrowDown:
        DrawChevron(*painter, rect, 0, TextColor(*option));
        return;
    case PE_IndicatorArrowUp:
        DrawChevron(*painter, rect, 180, TextColor(*option));
        return;
    case PE_IndicatorArrowLeft:
        DrawChevron(*painter, rect, 90, TextColor(*option));
        return;
    case PE_IndicatorArrowRight:
        DrawChevron(*painter, rect, -90, TextColor(*option));
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void WidgetStyle::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case CE_MenuItem:
        if (const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
            painter->save();
            DrawMenuItem(*painter, *item, proxy()->styleHint(SH_UnderlineShortcut, option, widget, nullptr) != 0);
            painter->restore();
        }
        return;
    case CE_MenuBarItem:
        if (const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
            const bool isDown = Has(*item, State_Sunken);
            if (IsEnabled(*item) && (isDown || Has(*item, State_Selected)))
                DrawPlate(
                    *painter, item->rect.adjusted(1, 2, -1, -2), isDown ? style::kSelection : White(0.07), White(0.05));
            painter->setPen(TextColor(*item));
            const bool shows = proxy()->styleHint(SH_UnderlineShortcut, option, widget, nullptr) != 0;
            painter->drawText(item->rect,
                Qt::AlignCenter | Qt::TextSingleLine | (shows ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                item->text);
        }
        return;
    case CE_SizeGrip:
        return; // edges and corners take the hand everywhere
    case CE_MenuBarEmptyArea:
    case CE_MenuEmptyArea:
        return;
    case CE_PushButton:
        // The face shows the focus itself.
        proxy()->drawControl(CE_PushButtonBevel, option, painter, widget);
        proxy()->drawControl(CE_PushButtonLabel, option, painter, widget);
        return;
    case CE_PushButtonLabel:
        if (const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
            button != nullptr && (Has(*button, State_Sunken) || Has(*button, State_On))) {
            auto warm = *button;
            warm.palette.setColor(QPalette::ButtonText, style::kLight);
            QProxyStyle::drawControl(element, &warm, painter, widget);
            return;
        }
        break;
    case CE_TabBarTabShape:
        if (const auto* const tab = qstyleoption_cast<const QStyleOptionTab*>(option))
            DrawTab(*painter, *tab);
        return;
    case CE_TabBarTabLabel:
        if (const auto* const tab = qstyleoption_cast<const QStyleOptionTab*>(option)) {
            auto label = *tab;
            label.state.setFlag(State_HasFocus, false); // the shape shows it
            if (!Has(label, State_Selected) && !IsHovered(label))
                label.palette.setColor(QPalette::WindowText, style::kSecondText);
            QProxyStyle::drawControl(element, &label, painter, widget);
        }
        return;
    case CE_Splitter:
        DrawSplitter(*painter, *option);
        return;
    case CE_ProgressBar:
        if (const auto* const bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option))
            DrawProgress(*painter, *bar);
        return;
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
        painter->fillRect(option->rect, IsHovered(*option) ? style::kRaisedHigh : style::kRaised);
        painter->fillRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1, White(0.09));
        return;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void WidgetStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    if (const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
        if (control == CC_ScrollBar)
            return DrawScrollBar(*painter, *slider);
        if (control == CC_Slider)
            return DrawSlider(
                *painter, *slider, QRectF(proxy()->subControlRect(CC_Slider, option, SC_SliderHandle, widget)));
    }
    if (const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        combo != nullptr && control == CC_ComboBox) {
        combo->editable ? DrawWell(*painter, *combo, combo->rect) : DrawPushFace(*painter, *combo, combo->rect, false);
        const QRectF arrow(combo->rect.right() - 22, combo->rect.top(), 18, combo->rect.height() - 1);
        DrawChevron(*painter, arrow, 0, TextColor(*combo));
        return;
    }
    if (const auto* const spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
        spin != nullptr && control == CC_SpinBox) {
        DrawWell(*painter, *spin, spin->rect);
        for (const auto part : { SC_SpinBoxUp, SC_SpinBoxDown }) {
            const auto step =
                part == SC_SpinBoxUp ? QAbstractSpinBox::StepUpEnabled : QAbstractSpinBox::StepDownEnabled;
            const auto place = subControlRect(CC_SpinBox, spin, part, widget);
            const bool canStep = IsEnabled(*spin) && spin->stepEnabled.testFlag(step);
            const bool isDown = spin->activeSubControls == part && Has(*spin, State_Sunken);
            const bool isOver = spin->activeSubControls == part && IsHovered(*spin);
            DrawChevron(*painter, place, part == SC_SpinBoxUp ? 180 : 0,
                !canStep     ? style::kFaintText
                    : isDown ? style::kLight
                    : isOver ? style::kText
                             : style::kSecondText,
                3);
        }
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QIcon WidgetStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const
{
    switch (picture) {
    case SP_MessageBoxInformation:
    case SP_MessageBoxWarning:
    case SP_MessageBoxCritical:
    case SP_MessageBoxQuestion:
        return MessageIcon(picture);
    default:
        break;
    }
    const auto sign = DialogSign(picture);
    return sign.isEmpty() ? QProxyStyle::standardIcon(picture, option, widget) : DialogIcon(sign);
}

} // namespace zentaro
