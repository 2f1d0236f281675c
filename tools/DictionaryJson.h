#pragma once

#include "inspect/Dictionary.h"

#include <string>

namespace zentaro {

/// The dictionary as one JSON object (RFC 8259), keys in their order. Bytes that are no valid UTF-8 become U+FFFD.
std::string JsonText(const Dictionary& data);

} // namespace zentaro
