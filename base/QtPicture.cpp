#include "base/QtPicture.h"

#include <vector>

namespace zentaro {

QImage ToQImage(const Picture& picture)
{
    if (picture.IsEmpty())
        return {};
    // Constant pixels: whoever draws into the image gets a copy of them first.
    const auto* const pixels = reinterpret_cast<const uchar*>(picture.Pixels());
    const auto lineBytes = static_cast<qsizetype>(sizeof(QRgb)) * picture.Width();
    const auto release = [](void* kept) { delete static_cast<Picture*>(kept); };
    return { pixels, picture.Width(), picture.Height(), lineBytes, QImage::Format_ARGB32, release,
        new Picture(picture) };
}

Picture ToPicture(const QImage& image)
{
    const auto plain = image.convertToFormat(QImage::Format_ARGB32);
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(plain.width()) * static_cast<std::size_t>(plain.height()));
    for (int y = 0; y < plain.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(plain.constScanLine(y));
        pixels.insert(pixels.end(), line, line + plain.width());
    }
    return Picture(plain.width(), plain.height(), std::move(pixels));
}

} // namespace zentaro
