#pragma once

#include "base/Picture.h"

#include <cstdint>
#include <string>

namespace zentaro {

/// Decodes a picture file of any format that Qt reads; no picture when it cannot be read. `path` may hold any bytes.
Picture DecodePictureFile(const std::string& path);

/// The same for the bytes of such a file.
Picture DecodePictureBytes(const std::string& bytes);

/// Writes a PNG file; false when it cannot be written.
bool SavePictureFile(const Picture& picture, const std::string& path);

/// A time, in seconds since 1970, as date and time of day in the short form of the user's locale.
std::string LocalDateText(std::int64_t seconds);

} // namespace zentaro
