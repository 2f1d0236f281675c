#include "assoc/IconPicture.h"

#include "base/QtPicture.h"

#include <QDir>
#include <QIcon>
#include <QPixmap>

namespace zentaro {

Picture LoadIconPicture(const std::string& file, int side)
{
    const auto name = QString::fromStdString(file);
    // An icon knows all the sizes that its file holds.
    const auto icon = QDir::isAbsolutePath(name) ? QIcon(name) : QIcon::fromTheme(name);
    return ToPicture(icon.pixmap(QSize(side, side), 1.0).toImage());
}

} // namespace zentaro
