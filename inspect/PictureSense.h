#pragma once

#include "base/Picture.h"

namespace zentaro {

/// How much there is to see: the spread of the brightness, 0 (one colour) to 255. Single dots count for nothing.
int ContrastOf(const Picture& picture);

/// Whether a film is recognised by it: not black, white, of one colour, or in the middle of a fade.
bool SaysSomething(const Picture& picture);

} // namespace zentaro
