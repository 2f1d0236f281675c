#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zentaro::desktop {

struct Colour {
    double red = 0, green = 0, blue = 0; ///< 0 to 255
    double Brightest() const;
};

/// What was on the screen.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels; ///< 0x00RRGGBB, row by row

    /// A picture file, scaled to this size.
    static Picture FromFile(const std::string& path, int width, int height);

    Colour Mean() const;
    /// Its coarse look, `count` times `count` pixels: how something was scaled no longer matters.
    Picture Blocks(int count) const;
    /// For a person to look at.
    void SavePng(const std::string& path) const;
};

/// The share of pixels, 0 to 1, where a colour part differs by more than `tolerance`; 1 where the sizes differ.
double ShareThatDiffers(const Picture& a, const Picture& b, int tolerance = 16);

} // namespace zentaro::desktop
