#pragma once

#include "inspect/SoundBars.h"

#include <array>

namespace zentaro {

/// How bars move: up at once, down as if they fell, and as high as there is room, also for soft music.
class BarMotion {
public:
    /// `seconds` have passed; `target`: null for silence. False when nothing has moved.
    bool Go(const BarPicture* target, double seconds);
    /// All lie down, and nothing is known of how loud it was.
    void Reset() { *this = BarMotion(); }
    /// 0 to 1 each.
    const std::array<double, kBars>& Heights() const { return m_heights; }

private:
    std::array<double, kBars> m_heights{};
    std::array<double, kBars> m_speeds{}; // of those that fall, a second
    double m_loudest = 0.75;
};

} // namespace zentaro
