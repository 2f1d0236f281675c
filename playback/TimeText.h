#pragma once

#include <string>

namespace zentaro {

/// Whole seconds as "HH:MM:SS"; 100 hours and more have three hour digits. Below 0 reads as 0.
std::string TimeText(long long seconds);

/// As one says it: "0:42", "1:30:05".
std::string ShortTimeText(long long seconds);

/// What the time label shows for an item: elapsed and total, both in ms, rounded half to even to whole seconds.
std::string TimeLabelText(double elapsed, double total);

} // namespace zentaro
