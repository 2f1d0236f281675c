#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace zentaro {

/// One immutable picture, cheap to copy: width and height in pixels, rows from the top, each pixel 0xAARRGGBB.
class Picture {
public:
    /// Empty: 0 x 0.
    Picture() = default;
    /// Sizes that do not fit the pixels give an empty picture.
    Picture(int width, int height, std::vector<std::uint32_t> pixels)
    {
        if (width <= 0 || height <= 0
            || static_cast<std::size_t>(width) * static_cast<std::size_t>(height) != pixels.size())
            return;
        m_width = width;
        m_height = height;
        m_pixels = std::make_shared<const std::vector<std::uint32_t>>(std::move(pixels));
    }

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    bool IsEmpty() const { return !m_pixels; }
    /// Null while empty.
    const std::uint32_t* Pixels() const { return m_pixels ? m_pixels->data() : nullptr; }
    /// Identity of the shared pixels, for caches; good as long as one copy of the picture lives.
    const void* Id() const { return m_pixels.get(); }
    /// The same picture object, not merely the same look.
    bool operator==(const Picture&) const = default;

private:
    int m_width = 0;
    int m_height = 0;
    std::shared_ptr<const std::vector<std::uint32_t>> m_pixels;
};

} // namespace zentaro
