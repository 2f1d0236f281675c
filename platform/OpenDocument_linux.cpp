#include "platform/OpenDocument.h"

#include "platform/Folders.h"

#include <QDesktopServices>
#include <QFile>
#include <QUrl>

namespace zentaro::platform {

std::string HelpFile()
{
    return "help/index.html";
}

Result<void> OpenDocument(const std::string& target)
{
    const auto bytes = QByteArray::fromStdString(target);
    const auto url = IsAbsolutePath(target) ? QUrl::fromLocalFile(QFile::decodeName(bytes)) : QUrl::fromEncoded(bytes);
    if (!QDesktopServices::openUrl(url))
        return Error{ 0, "No program opens " + target };
    return {};
}

} // namespace zentaro::platform
