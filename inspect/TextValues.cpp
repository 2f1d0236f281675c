#include "inspect/TextValues.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace zentaro {

namespace {

struct LeadingNumber {
    double value = 0;
    std::size_t length = 0; // of the text up to the number's end
};

std::optional<LeadingNumber> ReadLeadingNumber(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return std::nullopt;
    auto at = first;
    const bool signedText = text[at] == '-' || text[at] == '+';
    if (signedText)
        ++at;
    // The standard reader also takes "inf" and "nan", which are words here.
    const auto isDigit = [&](std::size_t i) { return i < text.size() && text[i] >= '0' && text[i] <= '9'; };
    if (!isDigit(at) && !(at < text.size() && text[at] == '.' && isDigit(at + 1)))
        return std::nullopt;
    double value = 0;
    const auto* const end = text.data() + text.size();
    const auto [stop, problem] = std::from_chars(text.data() + at, end, value);
    if (problem != std::errc())
        return std::nullopt;
    return LeadingNumber{ text[first] == '-' ? -value : value, static_cast<std::size_t>(stop - text.data()) };
}

} // namespace

double ValueOfText(std::string_view text)
{
    const auto number = ReadLeadingNumber(text);
    return number ? number->value : 0;
}

float FloatOfText(std::string_view text)
{
    const double value = ValueOfText(text);
    return std::abs(value) <= std::numeric_limits<float>::max() ? static_cast<float>(value) : 0.0F;
}

std::optional<std::int32_t> IntegerOfText(std::string_view text)
{
    const auto number = ReadLeadingNumber(text);
    if (!number)
        return std::nullopt;
    const double whole = std::nearbyint(number->value);
    using Limits = std::numeric_limits<std::int32_t>;
    if (whole < Limits::min() || whole > Limits::max())
        return std::nullopt;
    return static_cast<std::int32_t>(whole);
}

bool IsNumericText(std::string_view text)
{
    const auto number = ReadLeadingNumber(text);
    return number && number->length == text.size();
}

std::string FloatText(float value)
{
    std::array<char, 32> buffer;
    const auto done = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 7);
    std::string text(buffer.data(), done.ptr);
    std::replace(text.begin(), text.end(), 'e', 'E');
    return text;
}

std::optional<std::string_view> NextLine(std::string_view& text)
{
    if (text.empty())
        return std::nullopt;
    const auto end = std::min(text.find('\n'), text.size());
    auto line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

std::optional<std::string_view> TextBefore(std::string_view text, std::string_view mark)
{
    const auto at = text.find(mark);
    if (at == std::string_view::npos)
        return std::nullopt;
    return text.substr(0, at);
}

std::size_t DigitsAt(std::string_view text)
{
    return static_cast<std::size_t>(
        std::find_if_not(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }) - text.begin());
}

bool CutFront(std::string_view& text, std::string_view front)
{
    if (!text.starts_with(front))
        return false;
    text.remove_prefix(front.size());
    return true;
}

bool CutBack(std::string_view& text, std::string_view back)
{
    if (!text.ends_with(back))
        return false;
    text.remove_suffix(back.size());
    return true;
}

std::string_view Trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace zentaro
