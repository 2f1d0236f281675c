#pragma once

#include <QFile>
#include <QString>

#include <string>

// The one border between the program's text, bytes in UTF-8, and Qt's.
namespace zentaro {

/// For showing: bytes that are no valid UTF-8 turn into replacement characters.
inline QString ToQString(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string ToText(const QString& text)
{
    return text.toStdString();
}

/// A file's name as the system knows it, byte for byte.
inline std::string ToPath(const QString& name)
{
    return QFile::encodeName(name).toStdString();
}

} // namespace zentaro
