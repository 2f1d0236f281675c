#pragma once

#include <QString>

#include <string>

class QMenu;

namespace zentaro {

/// A caption with "&" marks, as Qt's menus take it. Of two marks the last one counts: the letter of the first belongs
/// to a neighbour. A key that blanks set apart stands in the column of the keys.
QString MenuCaption(const std::string& caption);

/// The name of a file or disc for one line of a menu: every character as it is, long names cut in the middle.
QString MenuName(const std::string& name);

/// The same for a menu that the desktop shows over its protocol, where the marks are others.
QString DesktopMenuName(const std::string& name);

/// Chooses the first entry of a menu that is open, as a key does: without opening what lies below it.
void ChooseFirst(QMenu& menu);

/// A key as its keyboard names it: "Strg+O" for "Ctrl+O" where that is German.
QString KeyName(const std::string& key);

} // namespace zentaro
