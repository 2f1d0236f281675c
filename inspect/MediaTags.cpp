#include "inspect/MediaTags.h"

#include <algorithm>
#include <cstddef>

namespace zentaro {

namespace {

constexpr std::size_t kIndent = 4; // of the file's own tags; those of a stream stand deeper

char Lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string_view WithoutBlanks(std::string_view text)
{
    const auto begin = std::min(text.find_first_not_of(' '), text.size());
    const auto end = text.find_last_not_of(" \r");
    return end == std::string_view::npos ? std::string_view() : text.substr(begin, end + 1 - begin);
}

} // namespace

void ReadTagLine(std::string_view line, MediaTags& tags)
{
    const auto indent = line.find_first_not_of(' ');
    const auto colon = line.find(':');
    if (indent == std::string_view::npos || indent < kIndent || colon == std::string_view::npos || colon < indent)
        return;
    std::string key(WithoutBlanks(line.substr(indent, colon - indent)));
    std::ranges::transform(key, key.begin(), Lower);
    auto* const value = key == "artist" ? &tags.artist : key == "album" ? &tags.album : nullptr;
    if (value != nullptr && value->empty())
        *value = WithoutBlanks(line.substr(colon + 1));
}

} // namespace zentaro
