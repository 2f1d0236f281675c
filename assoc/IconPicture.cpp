#include "assoc/IconPicture.h"

#include <QDir>
#include <QIcon>
#include <QImage>
#include <QPixmap>

#include <cstdint>
#include <utility>
#include <vector>

namespace zentaro {

Picture LoadIconPicture(const std::string& file, int side)
{
    const auto name = QString::fromStdString(file);
    // An icon knows all the sizes that its file holds.
    const auto icon = QDir::isAbsolutePath(name) ? QIcon(name) : QIcon::fromTheme(name);
    const auto image = icon.pixmap(QSize(side, side), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        pixels.insert(pixels.end(), line, line + image.width());
    }
    return Picture(image.width(), image.height(), std::move(pixels));
}

} // namespace zentaro
