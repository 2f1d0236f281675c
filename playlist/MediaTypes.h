#pragma once

#include <string_view>

namespace zentaro {

/// True for a file of the 24 types, or with `all` for every extension by which files that play are known.
bool IsMediaFile(std::string_view path, char separator, bool all);

} // namespace zentaro
