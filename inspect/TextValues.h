#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zentaro {

/// The number that a text begins with ("." is the decimal point, blanks in front and all behind it are ignored);
/// 0 when there is none or it does not fit.
double ValueOfText(std::string_view text);

/// The same as a 32-bit number.
float FloatOfText(std::string_view text);

/// The same as an integer, rounded half to even; nothing when the text begins with no number or it does not fit into 32
/// bits.
std::optional<std::int32_t> IntegerOfText(std::string_view text);

/// True when the whole text is a number.
bool IsNumericText(std::string_view text);

/// The shortest form of up to seven significant digits: "29.97", "25", "1E+07".
std::string FloatText(float value);

/// Cuts the next line off the front of `text`, without its CR LF or LF. Nothing when `text` is used up.
std::optional<std::string_view> NextLine(std::string_view& text);

inline bool Contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

/// The text before the first `mark`, or nothing.
std::optional<std::string_view> TextBefore(std::string_view text, std::string_view mark);

/// How many decimal digits the text begins with.
std::size_t DigitsAt(std::string_view text);

/// Cuts `front` off; false when the text does not begin so.
bool CutFront(std::string_view& text, std::string_view front);
/// Cuts `back` off; false when the text does not end so.
bool CutBack(std::string_view& text, std::string_view back);

/// The text without blanks at both ends.
std::string_view Trimmed(std::string_view text);

} // namespace zentaro
