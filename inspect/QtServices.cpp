#include "inspect/QtServices.h"

#include "base/QtPicture.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QLocale>

#include <fstream>
#include <iterator>

namespace zentaro {

Picture DecodePictureFile(const std::string& path)
{
    // Not read by Qt: a path may hold bytes that are no valid text, and a QString could not name the file.
    std::ifstream file(path, std::ios::binary);
    return DecodePictureBytes({ std::istreambuf_iterator<char>(file), {} });
}

Picture DecodePictureBytes(const std::string& bytes)
{
    const auto data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    return ToPicture(QImage::fromData(data));
}

bool SavePictureFile(const Picture& picture, const std::string& path)
{
    return ToQImage(picture).save(QFile::decodeName(path.c_str()), "PNG");
}

std::string LocalDateText(std::int64_t seconds)
{
    return QLocale::system().toString(QDateTime::fromSecsSinceEpoch(seconds), QLocale::ShortFormat).toStdString();
}

} // namespace zentaro
