#include "inspect/StreamLine.h"

#include "inspect/TextValues.h"

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

bool IsHarmlessTag(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-' || c == '_';
    });
}

} // namespace

std::optional<StreamLine> TakeApart(std::string_view line)
{
    StreamLine result;
    result.indent = std::min(line.find_first_not_of(' '), line.size());
    line.remove_prefix(result.indent);
    if (result.indent == 0 || !CutFront(line, "Stream #0"))
        return std::nullopt;
    if (CutFront(line, "."))
        result.dialect = StreamDialect::Classic;
    else if (!CutFront(line, ":"))
        return std::nullopt;
    result.number = line.substr(0, DigitsAt(line));
    line.remove_prefix(result.number.size());
    if (result.number.empty())
        return std::nullopt;

    std::size_t tags = 0;
    bool harmless = true;
    for (const auto& [open, close] : { std::pair("[", "]"), std::pair("(", "): ") }) {
        const auto rest = line.substr(tags);
        if (!rest.starts_with(open))
            continue;
        const auto end = rest.find(close);
        if (end == std::string_view::npos)
            return std::nullopt;
        harmless = harmless && IsHarmlessTag(rest.substr(1, end - 1));
        tags += end + 1;
    }
    // A language is any text that the file's maker liked.
    result.tags = harmless ? line.substr(0, tags) : std::string_view();
    line.remove_prefix(tags);
    if (!CutFront(line, ": "))
        return std::nullopt;
    if (CutFront(line, "Audio: "))
        result.kind = StreamKind::Audio;
    else if (CutFront(line, "Video: "))
        result.kind = StreamKind::Video;
    result.facts = line;
    return result;
}

} // namespace zentaro
