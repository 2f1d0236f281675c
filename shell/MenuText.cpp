#include "shell/MenuText.h"

#include "shell/QtText.h"

#include <QRegularExpression>

namespace zentaro {

namespace {

constexpr qsizetype kLongestName = 64; // characters

} // namespace

QString MenuCaption(const std::string& caption)
{
    auto text = ToQString(caption);
    const auto mark = text.lastIndexOf('&');
    text.remove('&');
    if (mark >= 0)
        text.insert(mark - ToQString(caption).left(mark).count('&'), '&');
    // The captions set their key apart by a row of blanks. In a menu the key has a column of its own, behind a tab.
    static const QRegularExpression padding(" {3,}");
    return text.replace(padding, "\t");
}

QString MenuName(const std::string& name)
{
    // A tab in the name would move what follows it into the column of the keys.
    auto text = ToQString(name).simplified();
    if (text.size() > kLongestName)
        text = text.left(kLongestName / 2) + QChar(0x2026) + text.right(kLongestName / 2);
    return text.replace('&', "&&");
}

} // namespace zentaro
