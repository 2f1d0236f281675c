#include "playlist/FoundFiles.h"

#include "base/Paths.h"
#include "base/Words.h"
#include "platform/Files.h"
#include "playlist/ListFile.h"
#include "playlist/MediaTypes.h"

#include <algorithm>
#include <array>

namespace zentaro {

namespace {

constexpr std::size_t kLongestList = 32 << 20; // bytes
constexpr std::array<std::string_view, 4> kSubtitles = { "srt", "ass", "ssa", "vtt" };

/// The first candidate that is there; empty when none is.
std::string FoundPath(const std::string& listed, char separator)
{
    for (const auto& path : ListedPathCandidates(listed, separator)) {
        if (platform::PathExists(path))
            return path;
    }
    return {};
}

void ReadList(const std::string& path, ListFormat format, char separator, const GoOn& goOn, bool takesAll,
    FoundFiles& found, std::vector<std::string>& names)
{
    const auto folder = path.substr(0, path.size() - FileNamePart(path, separator).size());
    const auto text = platform::ReadTextFile(path, kLongestList);
    const auto list = ParseListFile(text.value_or(""), format, folder, separator);
    found.listed += static_cast<int>(list.entries.size()) + list.unreadable;
    found.unreadable += list.unreadable;
    for (const auto& entry : list.entries) {
        if (!goOn())
            return;
        auto name = FoundPath(entry.path, separator);
        if (name.empty() || !IsMediaFile(name, separator, takesAll))
            ++found.unreadable;
        else
            names.push_back(std::move(name));
    }
}

} // namespace

bool IsSubtitleFile(std::string_view path, char separator)
{
    return std::ranges::find(kSubtitles, LowerExtension(path, separator)) != kSubtitles.end();
}

FoundFiles FindFiles(const std::vector<std::string>& paths, char separator, const GoOn& goOn, bool takesAll)
{
    FoundFiles found;
    std::vector<std::string> names;
    for (const auto& path : paths) {
        if (const auto format = ListFormatOf(path, separator))
            ReadList(path, *format, separator, goOn, takesAll, found, names);
        else if (IsSubtitleFile(path, separator))
            found.subtitles.push_back(path);
        else
            names.push_back(path);
    }
    found.media = DroppedMediaFiles(names, separator, goOn, takesAll, &found.skipped);
    return found;
}

std::string MissingText(const FoundFiles& found)
{
    if (found.unreadable == 0)
        return {};
    return CountedWords(found.listed, "%1 of %n entry could not be found", "%1 of %n entries could not be found",
        { std::to_string(found.unreadable) });
}

} // namespace zentaro
