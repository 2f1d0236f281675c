#include "shell/MenuText.h"

#include "shell/QtText.h"

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
    if (const auto gap = text.indexOf("  "); gap >= 0)
        text = text.left(gap) + '\t' + text.mid(gap).trimmed();
    return text;
}

QString MenuName(const std::string& name)
{
    // A tab would push the rest to where shortcuts stand.
    auto text = ToQString(name).simplified();
    if (text.size() > kLongestName)
        text = text.left(kLongestName / 2) + QChar(0x2026) + text.right(kLongestName / 2);
    return text.replace('&', "&&");
}

} // namespace zentaro
