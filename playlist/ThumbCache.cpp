#include "playlist/ThumbCache.h"

#include "base/QtPicture.h"

#include <algorithm>

namespace zentaro {

namespace {

constexpr qsizetype kMostKiB = 24 * 1024;

bool IsOpaque(const Picture& picture)
{
    const auto* end = picture.Pixels() + static_cast<std::ptrdiff_t>(picture.Width()) * picture.Height();
    return std::all_of(picture.Pixels(), end, [](std::uint32_t pixel) { return pixel >> 24 == 0xFF; });
}

QImage Scale(const Picture& picture, const QSize& size)
{
    // A picture without transparency is copied without blending.
    const auto format = IsOpaque(picture) ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied;
    return ToQImage(picture).convertToFormat(format).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

ThumbCache::ThumbCache()
    : m_images(kMostKiB)
{
}

QImage ThumbCache::Scaled(const Picture& picture, const QSize& size)
{
    if (picture.IsEmpty() || size.isEmpty())
        return {};
    const Key key{ picture.Id(), size.width(), size.height() };
    if (const auto* known = m_images.object(key))
        return known->image;
    auto image = zentaro::Scale(picture, size);
    const auto cost = std::max<qsizetype>(1, image.sizeInBytes() / 1024);
    m_images.insert(key, new Scale{ picture, image }, cost);
    return image;
}

} // namespace zentaro
