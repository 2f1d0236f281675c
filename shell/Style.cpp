#include "shell/Style.h"

#include "playlist/FancyListPainter.h"
#include "shell/WidgetStyle.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <utility>

namespace zentaro::style {

namespace {

QColor listBase{ 0x1B, 0x1E, 0x24 };
bool hasHighContrast = false;
bool hasLessMotion = false;
int look = 0;

void TakeUsualColours()
{
    static constexpr std::array kAll{ &kBase, &kBaseLight, &kRaised, &kRaisedHigh, &kTrack, &kText, &kSecondText,
        &kFaintText, &kLight, &kLightHigh, &kLightDeep, &kAlarm, &kSelection, &kSelected, &kHairline, &listBase };
    static const auto usual = [] {
        std::array<QColor, kAll.size()> colours;
        std::ranges::transform(kAll, colours.begin(), [](const QColor* each) { return *each; });
        return colours;
    }();
    for (std::size_t i = 0; i < kAll.size(); ++i)
        *kAll[i] = usual[i];
    kWarmLight = kLight.rgb();
}

void TakeColours(const Colours& colours)
{
    kBase = kBaseLight = kRaised = kRaisedHigh = listBase = colours.background;
    kText = kSecondText = colours.text;
    kTrack = kFaintText = colours.faint;
    kLight = kLightHigh = kLightDeep = colours.accent;
    kAlarm = colours.text;
    kSelection = colours.selection;
    kSelected = colours.selected;
    kHairline = colours.text;
    kWarmLight = colours.accent.rgb();
}

void TakeHighContrast()
{
    kBase = kBaseLight = listBase = QColor(0, 0, 0);
    kRaised = QColor(0x14, 0x14, 0x14);
    kRaisedHigh = QColor(0x2A, 0x2A, 0x2A);
    kTrack = QColor(0x80, 0x80, 0x80);
    kText = kSecondText = kSelected = QColor(0xFF, 0xFF, 0xFF);
    kFaintText = QColor(0xA8, 0xA8, 0xA8);
    kLight = kLightHigh = kLightDeep = QColor(0xFF, 0xD0, 0x30);
    kAlarm = QColor(0xFF, 0x70, 0x70);
    kSelection = QColor(0x00, 0x4A, 0x9F);
    kHairline = QColor(0xFF, 0xFF, 0xFF, 0xB0);
    kWarmLight = kLight.rgb();
}

QFont TextFont()
{
    QFont font;
    // One that is there: for a second one, and for one that is missing, Windows opens every font of the machine.
    const QStringList families{ "Inter", "Segoe UI", "Noto Sans", "DejaVu Sans" };
    const auto isThere = [](const QString& family) { return QFontDatabase::hasFamily(family); };
    if (const auto first = std::find_if(families.begin(), families.end(), isThere); first != families.end())
        font.setFamily(*first);
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
    palette.setColor(QPalette::HighlightedText, kSelected);
    palette.setColor(QPalette::Link, kLight);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, kFaintText);
    return palette;
}

/// A list lies deeper than the window, and its lines are hair-thin.
QPalette ListPalette(QPalette palette)
{
    palette.setColor(QPalette::Window, listBase);
    palette.setColor(QPalette::Button, kRaised);
    return palette;
}

} // namespace

void Apply(QApplication& application, const Needs& needs)
{
    static std::optional<Needs> applied;
    if (std::exchange(applied, needs) == needs)
        return;
    ++look;
    TakeUsualColours();
    hasHighContrast = needs.highContrast;
    if (needs.highContrast)
        needs.colours ? TakeColours(*needs.colours) : TakeHighContrast();
    hasLessMotion = needs.lessMotion;
    if (look == 1) {
        QApplication::setStyle(new WidgetStyle);
        application.setFont(TextFont());
        QToolTip::setFont(TextFont());
    }
    const auto palette = MakePalette();
    QApplication::setPalette(palette);
    QApplication::setPalette(ListPalette(palette), "zentaro::FancyList");
    QToolTip::setPalette(palette);
    // What is painted is more than the palette.
    for (auto* const widget : QApplication::allWidgets())
        widget->update();
}

int Look()
{
    return look;
}

bool HasHighContrast()
{
    return hasHighContrast;
}

bool HasLessMotion()
{
    return hasLessMotion;
}

QFont TimeFont()
{
    auto font = TextFont();
    // Of a weight that the family lacks, too, Windows looks for one in every font of the machine.
    if (const auto medium = font.family() + " Medium"; QFontDatabase::hasFamily(medium)) {
        font.setFamily(medium);
        font.setWeight(QFont::Medium);
    }
    return font;
}

QFont SmallFont()
{
    auto font = TextFont();
    font.setPixelSize(12);
    return font;
}

} // namespace zentaro::style
