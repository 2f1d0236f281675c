#include "base/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace zentaro {

namespace {

std::int32_t ClampToInteger(double whole)
{
    using Limits = std::numeric_limits<std::int32_t>;
    if (std::isnan(whole))
        return 0;
    return static_cast<std::int32_t>(
        std::clamp(whole, static_cast<double>(Limits::min()), static_cast<double>(Limits::max())));
}

} // namespace

std::int32_t RoundHalfEven(double value)
{
    return ClampToInteger(std::nearbyint(value));
}

std::int32_t RoundDown(double value)
{
    return ClampToInteger(std::floor(value));
}

std::string PrintForm(std::int32_t value)
{
    return (value < 0 ? "" : " ") + std::to_string(value) + " ";
}

std::optional<std::int32_t> ParseInteger(std::string_view text)
{
    std::int32_t value = 0;
    const auto* const end = text.data() + text.size();
    const auto [stop, problem] = std::from_chars(text.data(), end, value);
    if (problem != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

} // namespace zentaro
