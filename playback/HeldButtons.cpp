#include "playback/HeldButtons.h"

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

constexpr double kFastForwardRate = 10.0;
constexpr double kNormalRate = 1.0;
constexpr int kRewindStep = -1; // thousandths of the item

} // namespace

std::optional<double> HeldButtons::PressFastForward()
{
    m_isFastForwarding = true;
    return kFastForwardRate;
}

std::optional<double> HeldButtons::ReleaseFastForward()
{
    return std::exchange(m_isFastForwarding, false) ? std::optional(kNormalRate) : std::nullopt;
}

std::optional<double> HeldButtons::RewindTick(double position) const
{
    if (!m_isRewinding || position < 0)
        return std::nullopt;
    return std::max(position + kRewindStep * 0.001, 0.0);
}

std::optional<double> HeldButtons::ReleaseAll()
{
    ReleaseRewind();
    return ReleaseFastForward();
}

} // namespace zentaro
