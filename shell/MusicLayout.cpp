#include "shell/MusicLayout.h"

#include "base/Numbers.h"

#include <algorithm>

namespace zentaro {

namespace {

constexpr double kMargin = 0.07; // of the shorter side
constexpr int kLeastMargin = 10; // px
constexpr int kMostMargin = 56;
constexpr double kWide = 1.15;    // width to height, from which the text stands beside the cover
constexpr int kLeastHeight = 260; // px, below which there is no room under a cover
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
    const int innerWidth = std::max(width - 2 * margin, 0);
    const int innerHeight = std::max(height - 2 * margin, 0);
    isBeside = width > height * kWide || height < kLeastHeight;
    if (isBeside) {
        int side = std::min({ innerHeight, RoundHalfEven(innerWidth * kCoverShare), kMostCover });
        side = side < kLeastCover ? 0 : side;
        const int block = side > 0 ? side : innerHeight;
        const int gap = side > 0 ? Part(0.1, side, 12, 56) : 0;
        const int content = std::min(innerWidth, std::max(RoundHalfEven(side * kContentWidth), 360));
        const int left = (width - content) / 2;
        const int top = (height - block) / 2;
        titleSize = Part(0.115, block, 14, 44);
        lineSize = Part(0.072, block, 12, 26);
        cover = { left, top, side, side };
        const int barHeight = block < 100 || !hasBars ? 0 : Part(0.27, block, kLeastBars, kMostBars);
        text = { left + side + gap, top, content - side - gap, block - barHeight };
        bars = { text.left, text.Bottom(), text.width, barHeight };
        return;
    }
    titleSize = Part(0.06, std::min(width, height), 14, 40);
    lineSize = Part(0.042, std::min(width, height), 12, 24);
    const int textHeight = std::min(RoundHalfEven(titleSize * 2.9 + lineSize * 4.5), innerHeight);
    const int gap = Part(0.03, height, 8, 36);
    const int barHeight = Part(0.13, height, kLeastBars, kMostBars);
    hasBars = hasBars && innerHeight - textHeight - gap >= barHeight;
    const int below = textHeight + (hasBars ? gap + barHeight : 0);
    int side = std::min({ innerHeight - below - gap, innerWidth, kMostCover });
    side = side < kLeastCover ? 0 : side;
    const int above = side > 0 ? side + gap : 0;
    const int top = (height - above - below) / 2;
    cover = { (width - side) / 2, top, side, side };
    text = { margin, top + above, innerWidth, textHeight };
    const int barWidth = std::min(innerWidth, std::max(side, 300));
    bars = { (width - barWidth) / 2, text.Bottom() + gap, barWidth, hasBars ? barHeight : 0 };
}

} // namespace zentaro
