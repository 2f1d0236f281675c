#include "inspect/CoverTone.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace zentaro {

namespace {

constexpr std::size_t kHues = 36;
constexpr std::size_t kMostPixels = 20'000;
constexpr double kLeastColour = 0.03; // of what a picture of pure colour has

struct Hsv {
    double hue = 0; // 0 to kHues
    double saturation = 0;
    double value = 0;
};

Hsv HsvOf(std::uint32_t pixel)
{
    const auto part = [&](int shift) { return static_cast<double>(pixel >> shift & 0xFF) / 255; };
    const double red = part(16);
    const double green = part(8);
    const double blue = part(0);
    const double most = std::max({ red, green, blue });
    const double spread = most - std::min({ red, green, blue });
    if (spread <= 0)
        return { 0, 0, most };
    double sixth = (green - blue) / spread;
    if (most == green)
        sixth = 2 + (blue - red) / spread;
    else if (most == blue)
        sixth = 4 + (red - green) / spread;
    return { std::fmod(sixth + 6, 6) / 6 * kHues, spread / most, most };
}

std::uint32_t Rgb(const Hsv& colour)
{
    const auto part = [&](double offset) {
        const double at = std::fmod(offset + colour.hue / kHues * 6, 6);
        const double share = std::clamp(std::min(at, 4 - at), 0.0, 1.0);
        return static_cast<std::uint32_t>(std::lround(255 * colour.value * (1 - colour.saturation * share)));
    };
    return part(5) << 16 | part(3) << 8 | part(1);
}

} // namespace

CoverTone ToneOf(const Picture& picture)
{
    struct Ruler {
        double weight = 0;
        double hue = 0;
        double saturation = 0;
    };
    std::array<Ruler, kHues> rulers{};
    const auto count = static_cast<std::size_t>(picture.Width()) * static_cast<std::size_t>(picture.Height());
    const auto step = count / kMostPixels + 1;
    double all = 0;
    for (std::size_t i = 0; i < count; i += step) {
        const auto colour = HsvOf(picture.Pixels()[i]);
        // Dark and pale pixels have a hue that nobody sees.
        const double weight = colour.saturation * colour.saturation * colour.value;
        auto& ruler = rulers[static_cast<std::size_t>(colour.hue) % kHues];
        ruler.weight += weight;
        ruler.hue += weight * colour.hue;
        ruler.saturation += weight * colour.saturation;
        all += 1;
    }
    std::size_t best = 0;
    double most = 0;
    for (std::size_t i = 0; i < kHues; ++i) {
        const double here =
            rulers[i].weight + (rulers[(i + 1) % kHues].weight + rulers[(i + kHues - 1) % kHues].weight) / 2;
        if (here > most) {
            most = here;
            best = i;
        }
    }
    const auto& ruler = rulers[best];
    if (most < kLeastColour * all || ruler.weight <= 0)
        return {};
    const double hue = ruler.hue / ruler.weight;
    const double saturation = ruler.saturation / ruler.weight;
    return { Rgb({ hue, std::min(saturation, 0.6), 0.10 }), Rgb({ hue, std::min(saturation, 0.65), 0.29 }),
        Rgb({ hue, std::clamp(saturation, 0.3, 0.55), 0.96 }) };
}

} // namespace zentaro
