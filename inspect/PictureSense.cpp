#include "inspect/PictureSense.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace zentaro {

namespace {

constexpr int kLeastContrast = 40;
constexpr int kDark = 40;      // of 255; a picture whose lights do not get above it is black to the eye
constexpr double kDots = 0.03; // of all pixels, at each end of the scale

/// The brightness below which that share of the pixels lies.
int Quantile(const std::array<std::size_t, 256>& histogram, double share, std::size_t count)
{
    const auto wanted = static_cast<std::size_t>(share * static_cast<double>(count));
    std::size_t seen = 0;
    for (std::size_t level = 0; level < histogram.size(); ++level) {
        seen += histogram[level];
        if (seen > wanted)
            return static_cast<int>(level);
    }
    return 255;
}

struct Range {
    int dark = 0;
    int light = 0;
};

Range RangeOf(const Picture& picture)
{
    std::array<std::size_t, 256> histogram{};
    const auto count = static_cast<std::size_t>(picture.Width()) * static_cast<std::size_t>(picture.Height());
    for (std::size_t i = 0; i < count; ++i) {
        const auto pixel = picture.Pixels()[i];
        const auto part = [&](int shift) { return pixel >> shift & 0xFF; };
        ++histogram[(part(16) * 77 + part(8) * 150 + part(0) * 29) >> 8];
    }
    return count == 0 ? Range() : Range{ Quantile(histogram, kDots, count), Quantile(histogram, 1 - kDots, count) };
}

} // namespace

int ContrastOf(const Picture& picture)
{
    const auto range = RangeOf(picture);
    return range.light - range.dark;
}

bool SaysSomething(const Picture& picture)
{
    const auto range = RangeOf(picture);
    return range.light > kDark && range.light - range.dark >= kLeastContrast;
}

} // namespace zentaro
