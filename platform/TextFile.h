#pragma once

#include "base/Result.h"

#include <cstddef>
#include <optional>
#include <string>

namespace zentaro::platform {

/// The first `limit` bytes of a regular file; nothing when it cannot be opened for reading or is no regular file.
std::optional<std::string> ReadTextFile(const std::string& path, std::size_t limit);

/// True when something lies at the path.
bool PathExists(const std::string& path);

/// True when a regular file lies at the path and this user may write it.
bool MayWriteFile(const std::string& path);

/// Writes a complete new file beside `path` and lets it take that name in one step: a reader sees the old text or the
/// new one, never a part, whatever happens meanwhile. A link is followed: what it names is replaced. Fails without a
/// trace when the folder does not take it.
Result<void> ReplaceTextFile(const std::string& path, const std::string& text);

} // namespace zentaro::platform
