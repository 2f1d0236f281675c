#pragma once

#include "inspect/StreamLine.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zentaro {

/// A stream line's facts in the classic form, and what that form has no room for.
struct ClassicFacts {
    std::string text;
    bool attachedPicture = false; // marked as such by the tool
    bool nominalRateOnly = false; // the rate is the container's clock, not one of the film
    float displayAspect = 0;      // 0: none given
    bool interlaced = false;      // as marked by the tool
    std::int32_t width = 0;       // px, of a picture; 0: none given
    std::int32_t height = 0;      // px
};

ClassicFacts ToClassicAudio(std::string_view facts, StreamDialect dialect);
ClassicFacts ToClassicVideo(std::string_view facts, StreamDialect dialect);

} // namespace zentaro
