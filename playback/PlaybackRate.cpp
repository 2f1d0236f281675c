#include "playback/PlaybackRate.h"

#include "base/Numbers.h"
#include "base/Words.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zentaro {

namespace {

constexpr double kSlowest = 0.125;
constexpr double kFastest = 16;
constexpr double kStepsInOne = 20;

double Normalised(double rate)
{
    return rate <= 1 ? RoundHalfEven(rate * 1000) / 1000.0 : RoundDown(rate);
}

std::optional<double> ForEngine(double rate, bool mediaControlsEnabled)
{
    return mediaControlsEnabled ? std::optional(rate) : std::nullopt;
}

} // namespace

RateChange PlaybackRate::IncreaseRate(bool mediaControlsEnabled)
{
    if (m_value >= kFastest)
        return {};
    m_value = Normalised(m_value * 2);
    RateChange change{ .engineRate = ForEngine(m_value, mediaControlsEnabled), .decreaseEnabled = true };
    if (m_value >= kFastest)
        change.increaseEnabled = false;
    return change;
}

RateChange PlaybackRate::DecreaseRate(bool mediaControlsEnabled)
{
    if (m_value <= kSlowest)
        return {};
    m_value = Normalised(m_value / 2);
    RateChange change{ .engineRate = ForEngine(m_value, mediaControlsEnabled), .increaseEnabled = true };
    if (m_value <= kSlowest)
        change.decreaseEnabled = false;
    return change;
}

RateChange PlaybackRate::StepRate(int steps, bool mediaControlsEnabled)
{
    if (!mediaControlsEnabled)
        return {};
    const double next = RoundHalfEven(m_value * kStepsInOne + steps) / kStepsInOne;
    m_value = std::clamp(next, kSlowest, kFastest);
    return { .engineRate = m_value, .increaseEnabled = m_value<kFastest, .decreaseEnabled = m_value> kSlowest };
}

RateChange PlaybackRate::ResetRate(bool mediaControlsEnabled)
{
    if (!mediaControlsEnabled)
        return {};
    m_value = 1;
    return { .engineRate = m_value, .increaseEnabled = true, .decreaseEnabled = true };
}

std::string RateLabelText(double rate)
{
    // Engines keep the rate in few digits; more of them than ours has would only show that.
    const double shown = RoundHalfEven(rate * 1000) / 1000.0;
    std::array<char, 32> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), shown, std::chars_format::fixed);
    return Words("Playing rate:%1x", { std::string_view(digits.data(), written.ptr) });
}

} // namespace zentaro
