#include "tools/DictionaryJson.h"

#include "inspect/TextValues.h"

#include <nlohmann/json.hpp>

#include <type_traits>

namespace zentaro {

namespace {

nlohmann::ordered_json ToJson(const Dictionary& data)
{
    auto object = nlohmann::ordered_json::object();
    for (const auto& [key, value] : data.Entries()) {
        auto& place = object[key];
        std::visit(
            [&](const auto& typed) {
                using Type = std::decay_t<decltype(typed)>;
                if constexpr (std::is_same_v<Type, Dictionary>)
                    place = ToJson(typed);
                else if constexpr (std::is_same_v<Type, float>)
                    place = ValueOfText(FloatText(typed)); // prints 29.97, not 29.969999
                else
                    place = typed;
            },
            value);
    }
    return object;
}

} // namespace

std::string JsonText(const Dictionary& data)
{
    return ToJson(data).dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

} // namespace zentaro
