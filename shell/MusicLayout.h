#pragma once

#include "base/Geometry.h"

namespace zentaro {

/// Where a song is shown in an area of logical pixels: beside its cover where there is width, below it where there is
/// height.
struct MusicLayout {
    MusicLayout(int width, int height, bool hasBars = true);

    Rect cover;            ///< a square; empty where there is no room
    Rect text;             ///< its lines
    Rect bars;             ///< empty where there is no room, or none are wanted
    int titleSize = 0;     ///< px, of the letters
    int lineSize = 0;      ///< px, of the other lines
    bool isBeside = false; ///< the text stands beside the cover, from the left; else below it, in the middle

private:
    /// In that area; `side`: of the cover.
    void PlaceBeside(const Rect& inner, int side, bool hasBars);
    void PlaceBelow(const Rect& inner, bool hasBars);
};

} // namespace zentaro
