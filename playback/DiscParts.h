#pragma once

#include "playback/Engine.h"

#include <string>
#include <vector>

namespace zentaro {

/// What a user can jump to, as a menu shows it.
struct PartChoice {
    std::vector<std::string> captions;
    int present = -1; ///< index, below 0 when it is none of them
};

/// How a menu lists the titles of a disc, or the chapters of one: by name, those without a name by `kind` and a number
/// from 1, with the length where it is known.
std::vector<std::string> PartCaptions(const std::vector<DiscPart>& parts, const std::string& kind);

} // namespace zentaro
