#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace zentaro {

/// The text for the user's eyes and ears in the language that was chosen; the English one itself where there is no
/// other. "%1" to "%9" in it stand for the values, which are taken as they are.
std::string Words(std::string_view english, std::initializer_list<std::string_view> values = {});

/// What finds the other languages' texts; null: all stays English. An empty answer means that there is none.
void SetTranslator(std::function<std::string(std::string_view english)> translator);

} // namespace zentaro
