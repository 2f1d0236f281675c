#pragma once

#include <QString>

class QWidget;

namespace zentaro {

/// Has the text read out at once by who reads the window to its user; nothing where nobody does. Nothing is seen of it.
/// `window`: a top-level one.
void Announce(QWidget& window, const QString& text);

} // namespace zentaro
