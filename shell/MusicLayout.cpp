#include "shell/MusicLayout.h"

#include "base/Numbers.h"

#include <algorithm>

namespace zentaro {

namespace {

constexpr double kMargin = 0.07; // of the shorter side
constexpr int kLeastMargin = 10; // px
constexpr int kMostMargin = 56;
constexpr double kWide = 1.15;  // width to height, from which the text stands beside the cover
constexpr double kLarger = 1.3; // a cover by that much, than with text below, is worth it to stand beside
constexpr int kLeastCover = 64;
constexpr int kMostCover = 640;
constexpr double kCoverShare = 0.46;   // of the width, beside text
constexpr double kContentWidth = 2.75; // of the cover's: lines that are longer are hard to follow
constexpr int kLeastBars = 22;
constexpr int kMostBars = 170;

int Part(double share, int of, int least, int most)
{
    return std::clamp(RoundHalfEven(share * of), least, most);
}

} // namespace

MusicLayout::MusicLayout(int width, int height, bool hasBars)
{
    const int margin = Part(kMargin, std::min(width, height), kLeastMargin, kMostMargin);
    const Rect inner{ margin, margin, std::max(width - 2 * margin, 0), std::max(height - 2 * margin, 0) };
    PlaceBelow(inner, hasBars);
    const int side = std::min({ inner.height, RoundHalfEven(inner.width * kCoverShare), kMostCover });
    isBeside = width > height * kWide || side > cover.width * kLarger;
    if (isBeside)
        PlaceBeside(inner, side < kLeastCover ? 0 : side, hasBars);
}

void MusicLayout::PlaceBeside(const Rect& inner, int side, bool hasBars)
{
    const int block = side > 0 ? side : inner.height;
    const int gap = side > 0 ? Part(0.1, side, 12, 56) : 0;
    const int content = std::min(inner.width, std::max(RoundHalfEven(side * kContentWidth), 360));
    const int left = inner.left + (inner.width - content) / 2;
    const int top = inner.top + (inner.height - block) / 2;
    titleSize = Part(0.115, block, 14, 44);
    lineSize = Part(0.072, block, 12, 26);
    cover = { left, top, side, side };
    const int barHeight = block < 100 || !hasBars ? 0 : Part(0.27, block, kLeastBars, kMostBars);
    text = { left + side + gap, top, content - side - gap, block - barHeight };
    bars = { text.left, text.Bottom(), text.width, barHeight };
}

void MusicLayout::PlaceBelow(const Rect& inner, bool hasBars)
{
    titleSize = Part(0.06, std::min(inner.width, inner.height), 14, 40);
    lineSize = Part(0.042, std::min(inner.width, inner.height), 12, 24);
    const int textHeight = std::min(RoundHalfEven(titleSize * 2.9 + lineSize * 4.5), inner.height);
    const int gap = Part(0.03, inner.height, 8, 36);
    const int barHeight = Part(0.13, inner.height, kLeastBars, kMostBars);
    hasBars = hasBars && inner.height - textHeight - gap >= barHeight;
    const int below = textHeight + (hasBars ? gap + barHeight : 0);
    int side = std::min({ inner.height - below - gap, inner.width, kMostCover });
    side = side < kLeastCover ? 0 : side;
    const int above = side > 0 ? side + gap : 0;
    const int top = inner.top + (inner.height - above - below) / 2;
    cover = { inner.left + (inner.width - side) / 2, top, side, side };
    text = { inner.left, top + above, inner.width, textHeight };
    const int barWidth = std::min(inner.width, std::max(side, 300));
    bars = { inner.left + (inner.width - barWidth) / 2, text.Bottom() + gap, barWidth, hasBars ? barHeight : 0 };
}

} // namespace zentaro
