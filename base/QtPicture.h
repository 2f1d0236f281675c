#pragma once

#include "base/Picture.h"

#include <QImage>

namespace zentaro {

/// The picture as an image that shares its pixels and keeps them for as long as it needs them; a null image for no
/// picture.
QImage ToQImage(const Picture& picture);

/// A copy of the image's pixels; no picture for a null image.
Picture ToPicture(const QImage& image);

} // namespace zentaro
