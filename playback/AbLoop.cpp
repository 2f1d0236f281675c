#include "playback/AbLoop.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>
#include <utility>

namespace zentaro {

namespace {

constexpr double kShortest = 100; // ms

std::optional<double> Number(std::string_view text)
{
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    const bool isNumber = read.ec == std::errc() && read.ptr == text.data() + text.size() && std::isfinite(value);
    return isNumber && value >= 0 && !text.starts_with('-') ? std::optional(value) : std::nullopt;
}

} // namespace

void AbLoop::Mark(double time)
{
    if (IsOn()) {
        Clear();
    } else if (!m_begin) {
        m_begin = time;
    } else {
        m_end = std::max(*m_begin, time);
        m_begin = std::min(*m_begin, time);
        m_end = std::max(*m_end, *m_begin + kShortest);
    }
}

std::optional<double> ParseTime(const std::string& text)
{
    std::string_view rest(text);
    while (rest.starts_with(' '))
        rest.remove_prefix(1);
    while (rest.ends_with(' '))
        rest.remove_suffix(1);
    double seconds = 0;
    for (int parts = 1; parts <= 3; ++parts) {
        const auto colon = rest.find(':');
        const auto part = Number(rest.substr(0, colon));
        const bool isWhole = part && (colon == std::string_view::npos || *part == std::floor(*part));
        if (!isWhole)
            return std::nullopt;
        seconds = seconds * 60 + *part;
        if (colon == std::string_view::npos)
            return seconds * 1000;
        rest.remove_prefix(colon + 1);
    }
    return std::nullopt;
}

} // namespace zentaro
