#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace zentaro {

/// The text for the user's eyes and ears in the language that was chosen; the English one itself where there is no
/// other. "%1" to "%9" in it stand for the values, which are taken as they are. One that is written from right to left
/// keeps to itself: nothing around it changes its place.
std::string Words(std::string_view english, std::initializer_list<std::string_view> values = {});

/// The same of so many things, of which "%n" is the number. English has two forms; other languages have forms of their
/// own, which are known by `many`.
std::string CountedWords(
    long long count, std::string_view one, std::string_view many, std::initializer_list<std::string_view> values = {});

/// What finds the other languages' texts, by the count where there is one; null: all stays English. An empty answer
/// means that there is none.
using Translator = std::function<std::string(std::string_view english, std::optional<int> count)>;
void SetTranslator(Translator translator);

} // namespace zentaro
