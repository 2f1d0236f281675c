#include "shell/MenuText.h"

#include "base/Words.h"
#include "shell/QtText.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>

namespace zentaro {

namespace {

constexpr qsizetype kLongestName = 64; // characters

QString ShortName(const std::string& name)
{
    // A tab in the name would move what follows it into the column of the keys.
    auto text = ToQString(name).simplified();
    if (text.size() > kLongestName)
        text = text.left(kLongestName / 2) + QChar(0x2026) + text.right(kLongestName / 2);
    return text;
}

} // namespace

QString MenuCaption(const std::string& caption)
{
    // The captions set their key apart by a row of blanks. In a menu the key has a column of its own, behind a tab.
    const auto padding = caption.find("   ");
    auto text = ToQString(Words(caption.substr(0, padding)));
    while (text.count('&') > 1)
        text.remove(text.indexOf('&'), 1);
    return padding == std::string::npos ? text : text + '\t' + ToQString(caption.substr(padding)).trimmed();
}

QString MenuName(const std::string& name)
{
    return ShortName(name).replace('&', "&&");
}

QString DesktopMenuName(const std::string& name)
{
    // There "_" is the mark, and two are one character. The tool kit makes "_" of the first "&" alone, whatever
    // follows it: that one is spent on the first letter, and those of the name stay.
    return '&' + ShortName(name).replace('_', "__");
}

void ChooseFirst(QMenu& menu)
{
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::sendEvent(&menu, &down);
}

QString KeyName(const std::string& key)
{
    return QKeySequence(ToQString(key), QKeySequence::PortableText).toString(QKeySequence::NativeText);
}

} // namespace zentaro
