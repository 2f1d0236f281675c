#pragma once

#include <cstdint>

namespace zentaro {

/// The films of the benchmarks have a band in one of these colours across their middle.
enum class Band { None, Green, Magenta };

/// `pixel`: 0xRRGGBB; compression leaves the colours of a band only nearly what they were.
inline Band BandOf(std::uint32_t pixel)
{
    const bool red = (pixel >> 16 & 0xFF) > 128;
    const bool green = (pixel >> 8 & 0xFF) > 128;
    const bool blue = (pixel & 0xFF) > 128;
    if (green && !red && !blue)
        return Band::Green;
    return red && blue && !green ? Band::Magenta : Band::None;
}

} // namespace zentaro
