#include "playback/TimeText.h"

#include "base/Numbers.h"

#include <algorithm>

namespace zentaro {

namespace {

std::string TwoDigits(long long value)
{
    return (value < 10 ? "0" : "") + std::to_string(value);
}

} // namespace

std::string TimeText(long long seconds)
{
    const auto all = std::max(seconds, 0LL);
    return TwoDigits(all / 3600) + ":" + TwoDigits(all % 3600 / 60) + ":" + TwoDigits(all % 60);
}

std::string ShortTimeText(long long seconds)
{
    const auto all = std::max(seconds, 0LL);
    const auto rest = TwoDigits(all % 60);
    if (all < 3600)
        return std::to_string(all / 60) + ":" + rest;
    return std::to_string(all / 3600) + ":" + TwoDigits(all % 3600 / 60) + ":" + rest;
}

std::string TimeLabelText(double elapsed, double total)
{
    return TimeText(RoundHalfEven(elapsed / 1000)) + " / " + TimeText(RoundHalfEven(total / 1000));
}

} // namespace zentaro
