#include "inspect/QtServices.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QImage>
#include <QLocale>

#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

namespace zentaro {

Picture DecodePictureFile(const std::string& path)
{
    // Read here: a path of the system may hold bytes that no text of Qt can.
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{ std::istreambuf_iterator<char>(file), {} };
    auto image = QImage::fromData(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
    if (image.isNull())
        return {};
    image.convertTo(QImage::Format_ARGB32);
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        pixels.insert(pixels.end(), line, line + image.width());
    }
    return Picture(image.width(), image.height(), std::move(pixels));
}

bool SavePictureFile(const Picture& picture, const std::string& path)
{
    const QImage image(reinterpret_cast<const uchar*>(picture.Pixels()), picture.Width(), picture.Height(),
        picture.Width() * static_cast<int>(sizeof(QRgb)), QImage::Format_ARGB32);
    return image.save(QFile::decodeName(path.c_str()), "PNG");
}

std::string LocalDateText(std::int64_t seconds)
{
    return QLocale::system().toString(QDateTime::fromSecsSinceEpoch(seconds), QLocale::ShortFormat).toStdString();
}

} // namespace zentaro
