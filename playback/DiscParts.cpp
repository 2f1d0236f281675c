#include "playback/DiscParts.h"

#include "base/Numbers.h"
#include "base/Words.h"
#include "playback/TimeText.h"

#include <algorithm>
#include <cmath>

namespace zentaro {

namespace {

constexpr double kBackToStart = 3000; // ms into a chapter, from where a step back leads to its own start

std::vector<std::string> Names(const std::vector<DiscPart>& parts, const std::string& kind)
{
    std::vector<std::string> names;
    int number = 0;
    for (const auto& part : parts)
        names.push_back(part.name.empty() ? kind + " " + std::to_string(++number) : part.name);
    return names;
}

} // namespace

std::vector<std::string> TitleCaptions(const std::vector<DiscPart>& titles)
{
    auto captions = Names(titles, Words("Title"));
    for (std::size_t i = 0; i < titles.size(); ++i) {
        if (const auto seconds = RoundHalfEven(titles[i].length / 1000); seconds > 0)
            captions[i] += " (" + TimeText(seconds) + ")";
    }
    return captions;
}

std::vector<std::string> ChapterCaptions(const std::vector<DiscPart>& chapters)
{
    auto captions = Names(chapters, Words("Chapter"));
    for (std::size_t i = 0; HaveStarts(chapters) && i < chapters.size(); ++i)
        captions[i] = TimeText(RoundHalfEven(chapters[i].start / 1000)) + "  " + captions[i];
    return captions;
}

bool HaveStarts(const std::vector<DiscPart>& chapters)
{
    return std::ranges::any_of(chapters, [](const DiscPart& chapter) { return chapter.start > 0; });
}

int ChapterAt(const std::vector<DiscPart>& chapters, double time)
{
    int at = -1;
    for (int i = 0; HaveStarts(chapters) && i < static_cast<int>(chapters.size()); ++i) {
        if (chapters[static_cast<std::size_t>(i)].start <= time)
            at = i;
    }
    return at;
}

int ChapterNear(const std::vector<DiscPart>& chapters, double time, double reach)
{
    if (!HaveStarts(chapters))
        return -1;
    const auto distance = [time](const DiscPart& chapter) { return std::abs(chapter.start - time); };
    const auto nearest = std::ranges::min_element(chapters, {}, distance);
    return distance(*nearest) <= reach ? static_cast<int>(nearest - chapters.begin()) : -1;
}

std::optional<int> ChapterAfterStep(const std::vector<DiscPart>& chapters, int present, double time, int direction)
{
    const bool areTimed = HaveStarts(chapters);
    const int at = areTimed ? ChapterAt(chapters, time) : present;
    int next = at + direction;
    if (direction < 0 && areTimed && at >= 0 && time - chapters[static_cast<std::size_t>(at)].start > kBackToStart)
        next = at;
    const bool exists = next >= 0 && next < static_cast<int>(chapters.size());
    return exists ? std::optional(next) : std::nullopt;
}

} // namespace zentaro
