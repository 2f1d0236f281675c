#include "desktop/StoreNames.h"

#include <string_view>

namespace zentaro::desktop {
namespace {

std::string EscapedPart(std::string_view part)
{
    constexpr std::string_view kHex = "0123456789ABCDEF";
    if (part.empty())
        return "_";
    std::string text;
    for (const char c : part) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte > 0x7E || c == '/' || c == '\\' || c == '_') {
            text += '_';
            text += kHex[byte >> 4];
            text += kHex[byte & 15];
        } else {
            text += c;
        }
    }
    return text;
}

} // namespace

std::string StoreFileName(const std::string& key, const std::string& name)
{
    std::string text;
    std::string_view rest = key;
    while (!key.empty()) {
        const auto end = rest.find('\\');
        text += EscapedPart(rest.substr(0, end)) + "/";
        if (end == std::string_view::npos)
            break;
        rest.remove_prefix(end + 1);
    }
    return text + (name.empty() ? "_default" : EscapedPart(name));
}

} // namespace zentaro::desktop
