#pragma once

#include "shell/Style.h"

#include <QPainter>
#include <QStyleOption>

// What widgets look like; where their parts lie and when they are drawn is the business of WidgetStyle.
namespace zentaro {

inline constexpr int kIndicatorSide = 16; // px, check boxes and radio buttons
inline constexpr int kMenuText = 34;      // px, where a menu's text begins: icons and marks lie before it
inline constexpr int kMenuRight = 30;     // px, for the arrow of a submenu
inline constexpr int kShortestThumb = 28; // px, of a scroll bar

inline bool Has(const QStyleOption& option, QStyle::StateFlag flag)
{
    return option.state.testFlag(flag);
}

inline bool IsEnabled(const QStyleOption& option)
{
    return Has(option, QStyle::State_Enabled);
}

inline bool IsHovered(const QStyleOption& option)
{
    return IsEnabled(option) && Has(option, QStyle::State_MouseOver);
}

inline QColor TextColor(const QStyleOption& option)
{
    return IsEnabled(option) ? style::kText : style::kFaintText;
}

inline QColor White(double alpha)
{
    auto colour = style::HasHighContrast() ? style::kText : QColor(Qt::white);
    colour.setAlphaF(static_cast<float>(style::HasHighContrast() ? std::min(1.0, 4 * alpha) : alpha));
    return colour;
}

inline QColor Warm(double alpha)
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

/// A rectangle with round corners; its edge of one pixel follows the inner side.
void DrawPlate(QPainter& painter, const QRect& rect, const QBrush& face, const QColor& edge, double radius = 5);
/// A small arrowhead in the middle of the rectangle: down, or turned clockwise.
void DrawChevron(QPainter& painter, const QRectF& rect, double degrees, const QColor& color, double size = 3.5);
void DrawFocus(QPainter& painter, const QRect& rect);
/// What text is typed into: it lies deeper than its surroundings.
void DrawWell(QPainter& painter, const QStyleOption& option, const QRect& rect);
void DrawPushFace(QPainter& painter, const QStyleOption& option, const QRect& rect, bool isDefault);
/// The box of a check box, or the round one of a radio button, in the middle of the rectangle.
void DrawIndicator(QPainter& painter, const QStyleOption& option, QRect rect, bool isRound);
void DrawMenuItem(QPainter& painter, const QStyleOptionMenuItem& item, bool showMnemonics);
void DrawSplitter(QPainter& painter, const QStyleOption& option);
/// What of a scroll bar is dragged; it moves on the bar's whole length.
QRect ScrollThumb(const QStyleOptionSlider& bar);
void DrawScrollBar(QPainter& painter, const QStyleOptionSlider& bar);

} // namespace zentaro
