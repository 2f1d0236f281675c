#pragma once

#include <QColor>
#include <QFont>

class QApplication;

/// The look that everything in the program shares.
namespace zentaro::style {

inline constexpr QColor kBase{ 0x16, 0x18, 0x1D };
inline constexpr QColor kBaseLight{ 0x23, 0x26, 0x2E };
inline constexpr QColor kRaised{ 0x2C, 0x30, 0x38 };
inline constexpr QColor kTrack{ 0x33, 0x37, 0x40 }; // of a bar, where it is not filled
inline constexpr QColor kText{ 0xE8, 0xEA, 0xED };
inline constexpr QColor kSecondText{ 0x9A, 0xA0, 0xA6 };
inline constexpr QColor kLight{ 0xFF, 0xB0, 0x20 };
/// Over whatever it is drawn on.
inline constexpr QColor kHairline{ 0xFF, 0xFF, 0xFF, 0x14 };
inline constexpr QColor kSelection{ 0x45, 0x3B, 0x27 };

/// Palette and font of the whole program.
void Apply(QApplication& application);

/// Digits of one width, so that a running time does not tremble.
QFont TimeFont();

} // namespace zentaro::style
