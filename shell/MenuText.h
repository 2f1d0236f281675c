#pragma once

#include <QString>

#include <string>

namespace zentaro {

/// A caption with "&" marks, as Qt's menus take it. Of two marks the last one counts: the letter of the first belongs
/// to a neighbour. A key that blanks set apart stands in the column of the keys.
QString MenuCaption(const std::string& caption);

/// The name of a file or disc for one line of a menu: every character as it is, long names cut in the middle.
QString MenuName(const std::string& name);

} // namespace zentaro
