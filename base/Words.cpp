#include "base/Words.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zentaro {

namespace {

// What stands between the two has a direction of its own.
constexpr std::string_view kIsolate = "\u2068";
constexpr std::string_view kEndOfIsolate = "\u2069";

Translator& Chosen()
{
    static Translator translator;
    return translator;
}

std::string Find(std::string_view english, std::optional<int> count)
{
    auto found = Chosen() ? Chosen()(english, count) : std::string();
    return found.empty() ? std::string(english) : found;
}

/// By the first bytes of the scripts that are: Hebrew to N'Ko, Samaritan to Arabic, and the forms of presentation.
bool HasRightToLeft(std::string_view text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0;
        const bool isWord = lead >= 0xD6 && lead <= 0xDF && !(lead == 0xD6 && next < 0x90);
        if (isWord || (lead == 0xE0 && next >= 0xA0 && next <= 0xA3) || (lead == 0xEF && next >= 0xAC && next <= 0xBB))
            return true;
    }
    return false;
}

std::string Filled(std::string_view pattern, std::initializer_list<std::string_view> values)
{
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char next = i + 1 < pattern.size() ? pattern[i + 1] : '\0';
        const auto number = static_cast<std::size_t>(next - '1');
        if (pattern[i] != '%' || next < '1' || next > '9' || number >= values.size()) {
            text += pattern[i];
            continue;
        }
        const auto value = values.begin()[number];
        const bool isApart = HasRightToLeft(value);
        text += isApart ? kIsolate : "";
        text += value;
        text += isApart ? kEndOfIsolate : "";
        ++i;
    }
    return text;
}

} // namespace

void SetTranslator(Translator translator)
{
    Chosen() = std::move(translator);
}

std::string Words(std::string_view english, std::initializer_list<std::string_view> values)
{
    return Filled(Find(english, std::nullopt), values);
}

std::string CountedWords(
    long long count, std::string_view one, std::string_view many, std::initializer_list<std::string_view> values)
{
    constexpr long long kMost = std::numeric_limits<int>::max();
    auto text = Find(many, static_cast<int>(std::min(count, kMost)));
    if (text == many && count == 1)
        text = one;
    if (const auto mark = text.find("%n"); mark != text.npos)
        text.replace(mark, 2, std::to_string(count));
    return Filled(text, values);
}

} // namespace zentaro
