#pragma once

#include <QColor>
#include <QFont>

#include <optional>

class QApplication;

/// The look that everything in the program shares.
namespace zentaro::style {

// What shows them reads them when it paints: `Apply` may change them at any time.

inline QColor kBase{ 0x16, 0x18, 0x1D };
inline QColor kBaseLight{ 0x23, 0x26, 0x2E };
inline QColor kRaised{ 0x2C, 0x30, 0x38 };
inline QColor kRaisedHigh{ 0x38, 0x3D, 0x47 };
inline QColor kTrack{ 0x6A, 0x70, 0x7B }; // of a bar, where it is not filled
inline QColor kText{ 0xE8, 0xEA, 0xED };
inline QColor kSecondText{ 0x9A, 0xA0, 0xA6 };
inline QColor kFaintText{ 0x62, 0x68, 0x71 }; // of what cannot be used now
inline QColor kLight{ 0xFF, 0xB0, 0x20 };
inline QColor kLightHigh{ 0xFF, 0xC6, 0x5C };
inline QColor kLightDeep{ 0xD9, 0x8E, 0x0A };
inline QColor kAlarm{ 0xE5, 0x48, 0x4D };
inline QColor kSelection{ 0x3D, 0x43, 0x4F };
inline QColor kSelected = kText; // on the selection
/// Over whatever it is drawn on.
inline QColor kHairline{ 0xFF, 0xFF, 0xFF, 0x14 };

/// Colours of the user's own for all programs.
struct Colours {
    QColor background;
    QColor text;
    QColor selection;
    QColor selected;
    QColor accent;
    QColor faint;
    bool operator==(const Colours&) const = default;
};

/// What some users need otherwise.
struct Needs {
    bool highContrast = false;                     ///< light on black, lines instead of shades
    bool lessMotion = false;                       ///< what changes does so at once
    std::optional<Colours> colours = std::nullopt; ///< of the high contrast, instead of ours
    bool operator==(const Needs&) const = default;
};

/// Style, palette and font of the whole program, at its start and again when somebody's needs change.
void Apply(QApplication& application, const Needs& needs = {});
/// Counts what Apply has changed, for those who keep something painted.
int Look();
bool HasHighContrast();
bool HasLessMotion();

/// The font of times and numbers; `DigitLabel` gives its digits one width.
QFont TimeFont();
/// Of numbers that only accompany.
QFont SmallFont();

} // namespace zentaro::style
