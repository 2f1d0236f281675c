#include "inspect/MpegReport.h"

#include "base/Numbers.h"
#include "inspect/TextValues.h"

#include <cmath>

namespace zentaro {

namespace {

struct AspectRow {
    std::string_view start;
    float aspect;
};

constexpr AspectRow kAspects[] = {
    { "4/3", static_cast<float>(4.0 / 3.0) },
    { "16/9", static_cast<float>(16.0 / 9.0) },
    { "1/1", 1.0F },
    { "2.21/1", 2.21F },
};

/// 1-based position, 0 when the text does not hold the word: the tests below combine positions bit by bit.
std::uint32_t PositionOf(std::string_view line, std::string_view word)
{
    const auto at = line.find(word);
    return at == std::string_view::npos ? 0 : static_cast<std::uint32_t>(at + 1);
}

/// Not quite "holds `word` but not `other`", on purpose: bits of the one position may survive the other's.
bool HoldsWithout(std::string_view line, std::string_view word, std::string_view other)
{
    return (PositionOf(line, word) & ~PositionOf(line, other)) != 0;
}

/// The text between `unit` and the blank before it.
std::string_view WordBefore(std::string_view line, std::string_view unit)
{
    const auto front = line.substr(0, line.find(unit));
    return front.substr(front.rfind(' ') + 1); // no blank: from the start
}

void ReadLine(std::string_view line, MpegFacts& facts)
{
    constexpr std::string_view aspectMark = "  Aspect ratio ";
    if (line.starts_with(aspectMark)) {
        const auto ratio = line.substr(aspectMark.size());
        for (const auto& row : kAspects) {
            if (ratio.starts_with(row.start)) {
                facts.aspect = row.aspect;
                break;
            }
        }
    }
    if (Contains(line, " fps"))
        facts.frameRate = FloatOfText(WordBefore(line, " fps"));
    if (HoldsWithout(line, " Mbps", "Muxrate"))
        facts.bitRate = RoundHalfEven(ValueOfText(WordBefore(line, " Mbps")) * 1000);
    if (HoldsWithout(line, "interlaced", "Not "))
        facts.interlaced = true;
}

} // namespace

float KnownAspect(float aspect)
{
    constexpr float kTolerance = 0.01F;
    for (const auto& row : kAspects) {
        if (std::abs(aspect - row.aspect) < kTolerance)
            return row.aspect;
    }
    return 0;
}

MpegFacts ParseMpegReport(std::string_view text)
{
    MpegFacts facts;
    while (const auto line = NextLine(text))
        ReadLine(*line, facts);
    return facts;
}

} // namespace zentaro
