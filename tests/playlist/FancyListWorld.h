#pragma once

#include "playlist/FancyList.h"

#include <QApplication>
#include <QPalette>

#include <cmath>
#include <memory>
#include <string>

namespace zentaro {

/// Rows and colours as the main window sets them.
inline FancyListState& PrepareList(FancyListState& state)
{
    state.SetImageWidth(64);
    state.SetImageHeight(64);
    state.SetItemHeight(80);
    return state;
}

inline QPalette GraphitePalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x1B, 0x1E, 0x24));
    palette.setColor(QPalette::ButtonText, QColor(0xE8, 0xEA, 0xED));
    palette.setColor(QPalette::Button, QColor(0x2A, 0x2D, 0x33));
    palette.setColor(QPalette::Highlight, QColor(0x33, 0x38, 0x42));
    palette.setColor(QPalette::HighlightedText, QColor(0xFF, 0xFF, 0xFF));
    return palette;
}

/// A frame of some film: a sky, a sun and a hill, different for every number.
inline Picture Landscape(int number, int width, int height)
{
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double v = static_cast<double>(y) / height;
            const double hill = 0.68 + 0.1 * std::sin(x * 6.0 / width + number);
            const double sun = std::hypot(x - width * (0.2 + 0.15 * (number % 5)), y - height * 0.4) / height;
            auto color = QColor::fromHsvF(
                static_cast<float>(number * 37 % 100) / 100.0F, 0.45F, static_cast<float>(0.45 + 0.5 * v));
            if (sun < 0.13)
                color = QColor(255, 236, 190);
            if (v > hill)
                color = QColor(28, 34, 38);
            pixels.push_back(color.rgba());
        }
    }
    return { width, height, std::move(pixels) };
}

inline Picture Plain(int width, int height, std::uint32_t pixel)
{
    return { width, height,
        std::vector<std::uint32_t>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), pixel) };
}

} // namespace zentaro
