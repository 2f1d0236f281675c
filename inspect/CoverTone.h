#pragma once

#include "base/Picture.h"

#include <cstdint>

namespace zentaro {

/// The colours of a room around a picture, as 0xRRGGBB.
struct CoverTone {
    std::uint32_t deep = 0x111318;   ///< its darkest corners
    std::uint32_t glow = 0x2A2E36;   ///< light text can be read on it
    std::uint32_t bright = 0xFFB020; ///< stands out from both
    bool operator==(const CoverTone&) const = default;
};

/// The colour that rules the picture, in three shades; the defaults for one without colour, and for none.
CoverTone ToneOf(const Picture& picture);

} // namespace zentaro
