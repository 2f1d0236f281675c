#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zentaro {

/// Nearest integer; halves go to the even neighbour, as everywhere in this program. Values outside the range give the
/// nearest end of it, not-a-number gives 0.
std::int32_t RoundHalfEven(double value);

/// The whole number below or at `value` (truncation towards minus infinity); the range is held as above.
std::int32_t RoundDown(double value);

/// Print form: a blank in front of a value that is not negative (else the minus sign), the digits, one blank behind.
std::string PrintForm(std::int32_t value);

/// A whole decimal text as an integer; nothing when it holds anything else or does not fit into 32 bits.
std::optional<std::int32_t> ParseInteger(std::string_view text);

} // namespace zentaro
