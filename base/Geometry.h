#pragma once

#include <algorithm>

namespace zentaro {

/// A rectangle in pixels; right and bottom edges are exclusive. Negative sizes hold no point.
struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    int Right() const { return left + width; }
    int Bottom() const { return top + height; }
    bool Contains(int x, int y) const { return x >= left && x < Right() && y >= top && y < Bottom(); }
    bool operator==(const Rect&) const = default;
};

/// The size of what two rectangles share, in square pixels.
inline long long SharedArea(const Rect& a, const Rect& b)
{
    const long long width = std::min(a.Right(), b.Right()) - std::max(a.left, b.left);
    const long long height = std::min(a.Bottom(), b.Bottom()) - std::max(a.top, b.top);
    return width > 0 && height > 0 ? width * height : 0;
}

} // namespace zentaro
