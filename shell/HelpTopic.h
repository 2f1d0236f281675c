#pragma once

#include <string>

class QWidget;

namespace zentaro {

/// The page of the help that tells of the widget and of all that lies on it.
void SetHelpTopic(QWidget& widget, const char* page);

/// Of the widget itself, or of the nearest one around it; "index" where there is none.
std::string HelpTopicOf(const QWidget* widget);

} // namespace zentaro
