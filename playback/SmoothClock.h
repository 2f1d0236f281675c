#pragma once

#include <chrono>

namespace zentaro {

/// Where an item is between the steps of an engine's clock, which come some times a second.
class SmoothClock {
public:
    using Moment = std::chrono::steady_clock::time_point;

    /// ms. `time`: what the engine says at `now`, ms; `rate`: its speed, 0 while it stands.
    double At(double time, double rate, Moment now);

private:
    double m_heard = -1; // what the engine has said last
    double m_time = 0;   // what was worked out at m_at
    double m_behind = 0; // ms that are still to be caught up with
    Moment m_at{};
    Moment m_heardAt{};
};

} // namespace zentaro
