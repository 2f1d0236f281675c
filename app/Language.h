#pragma once

#include <QString>

#include <string>

class QCoreApplication;

namespace zentaro {

/// Has all texts from now on in the chosen language, as "de", or for an empty one in the first of the system's that
/// there is; English else. `folder` holds the texts, with a trailing separator. Returns the language.
std::string SpeakLanguage(QCoreApplication& application, const std::string& chosen, const QString& folder);

} // namespace zentaro
