#pragma once

#include <optional>
#include <string>

namespace zentaro {

/// What a rate command changes elsewhere; nothing in a field leaves it as it is.
struct RateChange {
    /// For the engine, and then for the rate label.
    std::optional<double> engineRate = std::nullopt;
    std::optional<bool> increaseEnabled = std::nullopt; ///< the command "IncreaseSpeed"
    std::optional<bool> decreaseEnabled = std::nullopt; ///< the command "DecreaseSpeed"
    bool operator==(const RateChange&) const = default;
};

/// The rate that the user has chosen: 0.125, 0.25, 0.5, 1, 2, 4, 8 or 16, or one between them by small steps. The
/// engine's own can differ, as while fast forward is held.
class PlaybackRate {
public:
    double Value() const { return m_value; }

    /// Without an item the value changes all the same, but engine and label do not.
    RateChange IncreaseRate(bool mediaControlsEnabled);
    RateChange DecreaseRate(bool mediaControlsEnabled);
    /// Steps of 0.05 between the slowest and the fastest; nothing without an item.
    RateChange StepRate(int steps, bool mediaControlsEnabled);
    /// Back to 1; nothing without an item.
    RateChange ResetRate(bool mediaControlsEnabled);
    /// The value alone is 1 again: the item's fresh engine already runs at it.
    void ItemStarted() { m_value = 1; }

private:
    double m_value = 1;
};

/// What the rate label shows, with the shortest decimal: "Playing rate:0.5x".
std::string RateLabelText(double rate);

} // namespace zentaro
