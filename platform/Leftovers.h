#pragma once

#include <string>

namespace zentaro::platform {

/// A new private folder of this run under the system's temporary folder, owner-only, without a trailing separator;
/// empty when none can be made. The caller removes it. Until this process ends it counts as in use, whoever looks.
std::string MakeWorkingFolder();

/// Removes what runs that were killed have left of this user's: their working folders, and in that folder the new files
/// of replacements that were cut short. What belongs to a run that lives stays. It reads the temporary folder, so it is
/// nothing for the window's thread.
void RemoveLeftovers(const std::string& replacedIn);

} // namespace zentaro::platform
