#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace zentaro {

/// A picture that never changes: copies share the pixels, so handing one around costs next to nothing and is safe
/// between threads. A default-made one is no picture.
class Picture {
public:
    Picture() = default;
    /// Width and height in px; `pixels` holds width x height values 0xAARRGGBB, row by row from the top. Any other
    /// number of pixels, or a side below 1, gives no picture.
    Picture(std::int32_t width, std::int32_t height, std::vector<std::uint32_t> pixels)
    {
        if (width < 1 || height < 1
            || pixels.size() != static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
            return;
        m_width = width;
        m_height = height;
        m_pixels = std::make_shared<const std::vector<std::uint32_t>>(std::move(pixels));
    }

    explicit operator bool() const { return m_pixels != nullptr; }
    bool IsEmpty() const { return m_pixels == nullptr; }
    /// px; 0 for no picture.
    std::int32_t Width() const { return m_width; }
    std::int32_t Height() const { return m_height; }
    /// The first pixel of the top row; null for no picture.
    const std::uint32_t* Pixels() const { return m_pixels ? m_pixels->data() : nullptr; }
    /// Identity of the shared pixels, for caches; good as long as one copy of the picture lives.
    const void* Id() const { return m_pixels.get(); }
    /// The same picture object, not merely the same look.
    bool operator==(const Picture&) const = default;

private:
    std::int32_t m_width = 0;
    std::int32_t m_height = 0;
    std::shared_ptr<const std::vector<std::uint32_t>> m_pixels;
};

} // namespace zentaro
