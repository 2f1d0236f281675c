#include "inspect/MediaTags.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace zentaro {

namespace {

constexpr std::size_t kIndent = 4; // of the file's own tags; those of a stream stand deeper
constexpr int kMostTracks = 9999;
constexpr int kLastYear = 9999;

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

/// Of "3/12" and "1987-05-01"; 0 for none, or one that is too large.
int LeadingNumber(std::string_view text, int most)
{
    int number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() && number > 0 && number <= most ? number : 0;
}

} // namespace

void ReadTagLine(std::string_view line, bool namesSong, MediaTags& tags)
{
    const auto indent = line.find_first_not_of(' ');
    const auto colon = line.find(':');
    if (indent == std::string_view::npos || indent < kIndent || colon == std::string_view::npos || colon < indent)
        return;
    std::string key(WithoutBlanks(line.substr(indent, colon - indent)));
    std::ranges::transform(key, key.begin(), Lower);
    const auto value = WithoutBlanks(line.substr(colon + 1));
    auto* const text = key == "artist" ? &tags.artist
        : key == "album"               ? &tags.album
        : key == "title" && namesSong  ? &tags.title
                                       : nullptr;
    if (text != nullptr && text->empty())
        *text = value;
    if (key == "track" && tags.number == 0)
        tags.number = LeadingNumber(value, kMostTracks);
    if (key == "date" && tags.year == 0)
        tags.year = LeadingNumber(value, kLastYear);
}

} // namespace zentaro
