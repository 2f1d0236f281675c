#pragma once

#include "base/Result.h"

#include <string>

namespace zentaro::platform {

/// Where the help begins, below the program folder: one file on Windows, pages for the browser elsewhere.
std::string HelpFile();

/// Opens a file (an absolute path) or a web address in the program that the user has chosen for it, and does not wait.
/// Fails when the system knows no such program.
Result<void> OpenDocument(const std::string& target);

} // namespace zentaro::platform
