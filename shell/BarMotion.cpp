#include "shell/BarMotion.h"

#include <algorithm>
#include <cstddef>

namespace zentaro {

namespace {

constexpr double kFall = 4.5;         // a second, faster with each second
constexpr double kRise = 0.6;         // of what is missing, in each picture
constexpr double kForget = 0.02;      // a second, of how loud it was
constexpr double kLeastLoudest = 0.4; // softer sound is no music

} // namespace

bool BarMotion::Go(const BarPicture* target, double seconds)
{
    const auto before = m_heights;
    double loudest = 0;
    for (std::size_t i = 0; target != nullptr && i < kBars; ++i)
        loudest = std::max(loudest, static_cast<double>((*target)[i]) / 255);
    m_loudest = std::clamp(m_loudest - kForget * seconds, std::max(loudest, kLeastLoudest), 1.0);
    for (std::size_t i = 0; i < kBars; ++i) {
        const double wanted = target == nullptr ? 0 : static_cast<double>((*target)[i]) / 255 / m_loudest;
        if (wanted >= m_heights[i]) {
            m_heights[i] += (wanted - m_heights[i]) * kRise;
            m_speeds[i] = 0;
        } else {
            m_speeds[i] += kFall * seconds;
            m_heights[i] = std::max(m_heights[i] - m_speeds[i] * seconds, wanted);
        }
    }
    return m_heights != before;
}

} // namespace zentaro
