#pragma once

#include "base/Geometry.h"

#include <QRect>

namespace zentaro {

inline QRect ToQt(const Rect& rect)
{
    return { rect.left, rect.top, rect.width, rect.height };
}

inline Rect FromQt(const QRect& rect)
{
    return { rect.x(), rect.y(), rect.width(), rect.height() };
}

} // namespace zentaro
