#include "playback/SmoothClock.h"

#include <algorithm>
#include <cmath>

namespace zentaro {

namespace {

constexpr double kJump = 400;         // ms; so far away nothing is caught up with
constexpr double kLongestStep = 2500; // ms without a word of the engine, after which it may stand
constexpr double kCatchUp = 0.1;      // of the time that passes

} // namespace

double SmoothClock::At(double time, double rate, Moment now)
{
    const auto since = [&](Moment then) { return std::chrono::duration<double, std::milli>(now - then).count(); };
    if (rate <= 0) {
        m_heard = -1;
        return m_time = time;
    }
    if (m_heard < 0) {
        m_heard = time;
        m_time = time;
        m_behind = 0;
        m_heardAt = m_at = now;
        return m_time;
    }
    const double passed = since(m_at) * rate;
    if (since(m_heardAt) < kLongestStep) {
        const double caughtUp = std::clamp(m_behind, -passed * kCatchUp, passed * kCatchUp);
        m_time += passed + caughtUp;
        m_behind -= caughtUp;
    }
    m_at = now;
    if (time == m_heard)
        return m_time;
    m_heard = time;
    m_heardAt = now;
    m_behind = time - m_time;
    if (std::abs(m_behind) > kJump * std::max(rate, 1.0)) {
        m_time = time;
        m_behind = 0;
    }
    return m_time;
}

} // namespace zentaro
