#pragma once

#include <QProxyStyle>

namespace zentaro {

/// How menus, dialogs, notes and every widget in them look: the skin's world, whatever the desktop looks like.
class WidgetStyle : public QProxyStyle {
    Q_OBJECT

public:
    WidgetStyle();

    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* answer) const override;
    QSize sizeFromContents(
        ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const override;
    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace zentaro
