#pragma once

#include <string>

namespace zentaro::desktop {

/// The name under which a value lies in a settings file: the key's parts and the value's name, separated by "/".
/// Different values have different names, whatever characters they hold: what is not a printable ASCII character, and
/// "/", "_" and (in a value's name) "\", becomes "_" and two hex digits. The key's own value is called "_default", an
/// empty part "_".
std::string StoreFileName(const std::string& key, const std::string& name);

} // namespace zentaro::desktop
