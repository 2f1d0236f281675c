#include "base/Words.h"

#include <utility>

namespace zentaro {

namespace {

std::function<std::string(std::string_view)>& Translator()
{
    static std::function<std::string(std::string_view)> translator;
    return translator;
}

} // namespace

void SetTranslator(std::function<std::string(std::string_view english)> translator)
{
    Translator() = std::move(translator);
}

std::string Words(std::string_view english, std::initializer_list<std::string_view> values)
{
    auto pattern = Translator() ? Translator()(english) : std::string();
    if (pattern.empty())
        pattern = english;
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char next = i + 1 < pattern.size() ? pattern[i + 1] : '\0';
        const auto number = static_cast<std::size_t>(next - '1');
        if (pattern[i] == '%' && next >= '1' && next <= '9' && number < values.size()) {
            text += values.begin()[number];
            ++i;
        } else {
            text += pattern[i];
        }
    }
    return text;
}

} // namespace zentaro
