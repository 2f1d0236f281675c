#include "shell/Style.h"

#include "shell/WidgetStyle.h"

#include <QApplication>
#include <QPalette>
#include <QToolTip>

namespace zentaro::style {

namespace {

constexpr QColor kListBase{ 0x1B, 0x1E, 0x24 };

QFont TextFont()
{
    QFont font;
    font.setFamilies({ "Inter", "Segoe UI", "Noto Sans", "DejaVu Sans" });
    font.setPixelSize(13);
    return font;
}

QPalette MakePalette()
{
    QPalette palette(kRaised, kBase);
    palette.setColor(QPalette::Window, kBaseLight);
    palette.setColor(QPalette::WindowText, kText);
    palette.setColor(QPalette::Base, kBase);
    palette.setColor(QPalette::AlternateBase, kBaseLight);
    palette.setColor(QPalette::Text, kText);
    palette.setColor(QPalette::PlaceholderText, kSecondText);
    palette.setColor(QPalette::Button, kRaised);
    palette.setColor(QPalette::ButtonText, kText);
    palette.setColor(QPalette::ToolTipBase, kRaised);
    palette.setColor(QPalette::ToolTipText, kText);
    palette.setColor(QPalette::Highlight, kSelection);
    palette.setColor(QPalette::HighlightedText, kText);
    palette.setColor(QPalette::Link, kLight);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, kFaintText);
    return palette;
}

/// A list lies deeper than the window, and its lines are hair-thin.
QPalette ListPalette(QPalette palette)
{
    palette.setColor(QPalette::Window, kListBase);
    palette.setColor(QPalette::Button, kRaised);
    return palette;
}

} // namespace

void Apply(QApplication& application)
{
    const auto palette = MakePalette();
    QApplication::setStyle(new WidgetStyle);
    QApplication::setPalette(palette);
    QApplication::setPalette(ListPalette(palette), "zentaro::FancyList");
    QToolTip::setPalette(palette);
    application.setFont(TextFont());
    QToolTip::setFont(TextFont());
}

QFont TimeFont()
{
    auto font = TextFont();
    font.setWeight(QFont::Medium);
    return font;
}

QFont SmallFont()
{
    auto font = TextFont();
    font.setPixelSize(12);
    return font;
}

} // namespace zentaro::style
