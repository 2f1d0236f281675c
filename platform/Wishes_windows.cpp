#include "platform/Wishes.h"

#include <windows.h>

namespace zentaro::platform {
namespace {

std::uint32_t ColourOf(int element)
{
    const auto colour = GetSysColor(element);
    return static_cast<std::uint32_t>(GetRValue(colour)) << 16 | static_cast<std::uint32_t>(GetGValue(colour)) << 8
        | GetBValue(colour);
}

} // namespace

Wishes SystemWishes()
{
    Wishes wishes;
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    wishes.highContrast = SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != 0
        && (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
    if (wishes.highContrast)
        wishes.colours = { ColourOf(COLOR_WINDOW), ColourOf(COLOR_WINDOWTEXT), ColourOf(COLOR_HIGHLIGHT),
            ColourOf(COLOR_HIGHLIGHTTEXT), ColourOf(COLOR_HOTLIGHT), ColourOf(COLOR_GRAYTEXT) };
    BOOL animates = TRUE;
    wishes.lessMotion = SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animates, 0) != 0 && animates == FALSE;
    return wishes;
}

} // namespace zentaro::platform
