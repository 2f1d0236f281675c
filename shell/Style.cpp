#include "shell/Style.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace zentaro::style {

namespace {

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
        palette.setColor(QPalette::Disabled, role, kSecondText);
    return palette;
}

} // namespace

void Apply(QApplication& application)
{
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(MakePalette());
    application.setFont(TextFont());
}

QFont TimeFont()
{
    // Inter shows tabular digits only through a font feature; the mono family has them by nature.
    auto font = TextFont();
    font.setStyleHint(QFont::SansSerif);
    return font;
}

} // namespace zentaro::style
