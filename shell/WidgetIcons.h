#pragma once

#include <QIcon>
#include <QStyle>

namespace zentaro {

/// What message boxes and the toolkit's own dialogs show as signs, drawn in the skin's lines; a null icon for a sign
/// that none of them shows.
QIcon WidgetIcon(QStyle::StandardPixmap picture);

} // namespace zentaro
