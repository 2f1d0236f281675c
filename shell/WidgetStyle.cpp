#include "shell/WidgetStyle.h"

#include "shell/MenuStrip.h"
#include "shell/WidgetFaces.h"
#include "shell/WidgetIcons.h"

#include <QAbstractItemView>
#include <QStyleFactory>

#include <algorithm>

namespace zentaro {

namespace {

constexpr int kMenuItemHeight = 28; // px
constexpr int kMenuSeparator = 9;   // px
constexpr int kScrollBar = 12;      // px
constexpr int kFieldHeight = 28;    // px

} // namespace

WidgetStyle::WidgetStyle()
    : QProxyStyle(QStyleFactory::create("Fusion"))
{
}

void WidgetStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QAbstractItemView*>(widget) != nullptr)
        widget->setAttribute(Qt::WA_Hover);
}

int WidgetStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return kIndicatorSide;
    case PM_ScrollBarExtent:
        return kScrollBar;
    case PM_ScrollBarSliderMin:
        return kShortestThumb;
    case PM_MenuPanelWidth:
    case PM_ButtonShiftVertical:
        return 1;
    case PM_MenuVMargin:
        return 4;
    case PM_MenuBarItemSpacing: {
        const auto* const strip = qobject_cast<const MenuStrip*>(widget);
        return strip != nullptr ? strip->Gap() : QProxyStyle::pixelMetric(metric, option, widget);
    }
    case PM_TabBarScrollButtonWidth:
        return 24;
    case PM_HeaderMargin:
        return 8;
    case PM_ToolTipLabelFrameWidth:
        return 6;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 8;
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
    case SH_ComboBox_Popup:
    case SH_DialogButtonBox_ButtonsHaveIcons:
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
    if (type == CT_LineEdit || type == CT_ComboBox)
        return { result.width() + 8, kFieldHeight };
    if (type == CT_ItemViewItem || type == CT_CheckBox || type == CT_RadioButton)
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
    const auto place = QProxyStyle::subControlRect(control, option, part, widget);
    return control == CC_ComboBox && part == SC_ComboBoxEditField ? place.adjusted(4, 0, 0, 0) : place;
}

QRect WidgetStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    const auto place = QProxyStyle::subElementRect(element, option, widget);
    return element == SE_LineEditContents ? place.adjusted(4, 0, -4, 0) : place;
}

QPixmap WidgetStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const
{
    // Qt would tint the icon of a selected line; ours look well on every ground.
    return mode == QIcon::Disabled ? QProxyStyle::generatedIconPixmap(mode, pixmap, option) : pixmap;
}

void WidgetStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    const auto& rect = option->rect;
    switch (element) {
    case PE_FrameFocusRect:
        // Lists show by their selection which line the keys act on.
        if (qobject_cast<const QAbstractItemView*>(widget) == nullptr)
            DrawFocus(*painter, rect);
        return;
    case PE_PanelButtonCommand: {
        const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
        const bool isDefault = button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
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
    case PE_Frame: {
        const auto focused = Has(*option, State_HasFocus);
        DrawPlate(*painter, rect, Qt::NoBrush, focused ? Warm(0.7) : White(0.11), 2);
        return;
    }
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
    case PE_IndicatorHeaderArrow:
        if (const auto* const header = qstyleoption_cast<const QStyleOptionHeader*>(option))
            DrawChevron(
                *painter, rect, header->sortIndicator == QStyleOptionHeader::SortUp ? 180 : 0, style::kSecondText, 3);
        return;
    case PE_IndicatorArrowDown: // both only in menus that are higher than the screen
    case PE_IndicatorArrowUp:
        DrawChevron(*painter, rect, element == PE_IndicatorArrowUp ? 180 : 0, TextColor(*option));
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
    case CE_SizeGrip:
        return; // a window is resized at any of its edges; it needs no grip
    case CE_MenuEmptyArea:
        return;
    case CE_PushButton:
        // Without the focus rectangle that Qt adds: the face shows the focus.
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
    case CE_Splitter:
        DrawSplitter(*painter, *option);
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
    if (const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar != nullptr && control == CC_ScrollBar)
        return DrawScrollBar(*painter, *bar);
    if (control == CC_ComboBox) {
        DrawPushFace(*painter, *option, option->rect, false);
        const QRectF arrow(option->rect.right() - 22, option->rect.top(), 18, option->rect.height() - 1);
        DrawChevron(*painter, arrow, 0, TextColor(*option));
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QIcon WidgetStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const
{
    const auto icon = WidgetIcon(picture);
    return icon.isNull() ? QProxyStyle::standardIcon(picture, option, widget) : icon;
}

} // namespace zentaro
