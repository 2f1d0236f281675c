#include "inspect/ClassicFacts.h"

#include "inspect/ChannelLayout.h"
#include "inspect/TextValues.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <optional>
#include <vector>

namespace zentaro {

namespace {

using Parts = std::vector<std::string_view>;

/// Cuts at ", " outside of brackets; a line whose brackets do not match is cut at every one.
Parts SplitParts(std::string_view text, bool mindBrackets = true)
{
    Parts parts;
    std::size_t start = 0;
    int depth = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (mindBrackets && (c == '(' || c == '['))
            ++depth;
        else if (mindBrackets && (c == ')' || c == ']'))
            --depth;
        else if (c == ',' && depth <= 0 && at + 1 < text.size() && text[at + 1] == ' ') {
            parts.push_back(text.substr(start, at - start));
            start = at + 2;
        }
    }
    if (depth != 0)
        return SplitParts(text, false);
    parts.push_back(text.substr(start));
    return parts;
}

constexpr std::string_view kAttachedPicture = "attached pic";
constexpr std::array<std::string_view, 19> kDispositions = { "default", "dub", "original", "comment", "lyrics",
    "karaoke", "forced", "hearing impaired", "visual impaired", "clean effects", kAttachedPicture, "timed thumbnails",
    "captions", "descriptions", "metadata", "dependent", "still image", "non-diegetic", "multilayer" };

/// Cuts the marks off the end of the facts; true when one of them says that this is an attached picture.
bool CutDispositions(std::string_view& facts)
{
    bool attached = false;
    while (facts.ends_with(')')) {
        const auto open = facts.rfind(" (");
        if (open == std::string_view::npos)
            break;
        const auto word = facts.substr(open + 2, facts.size() - open - 3);
        if (std::find(kDispositions.begin(), kDispositions.end(), word) == kDispositions.end())
            break;
        attached = attached || word == kAttachedPicture;
        facts = facts.substr(0, open);
    }
    return attached;
}

/// A codec without a name, as it was printed when tags stood in the name's place: "mp4a / 0x6134706D", or the number
/// alone when the tag is no text.
std::string UnknownCodec(std::string_view codec)
{
    constexpr std::string_view hexMark = "/ 0x";
    std::uint32_t tag = 0;
    if (const auto at = codec.rfind(hexMark); at != std::string_view::npos) {
        const auto digits = codec.substr(at + hexMark.size());
        std::from_chars(digits.data(), digits.data() + digits.size(), tag, 16);
    }
    std::array<char, 8> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), tag, 16).ptr;
    std::string number(buffer.data(), end);
    std::transform(number.begin(), number.end(), number.begin(),
        [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    number.insert(0, number.size() < 4 ? 4 - number.size() : 0, '0');
    number.insert(0, "0x");

    std::string letters;
    for (int shift = 0; shift < 32; shift += 8)
        letters += static_cast<char>((tag >> shift) & 0xFF);
    // A comma could end the part in the middle of the tag.
    const bool printable =
        std::all_of(letters.begin(), letters.end(), [](char c) { return c >= ' ' && c <= '~' && c != ','; });
    return printable ? letters + " / " + number : number;
}

std::string CodecText(std::string_view codec, StreamDialect dialect)
{
    if (dialect == StreamDialect::Classic)
        return std::string(codec);
    const auto name = codec.substr(0, codec.find(' '));
    return name == "none" ? UnknownCodec(codec) : std::string(name);
}

/// "128 kb/s" of "128 kb/s" with whatever follows; nothing when the part is no bit rate ("max. 8000 kb/s" is none).
std::optional<std::string_view> BitRateOf(std::string_view part)
{
    constexpr std::string_view unit = " kb/s";
    const auto digits = DigitsAt(part);
    if (digits == 0 || !part.substr(digits).starts_with(unit))
        return std::nullopt;
    return part.substr(0, digits + unit.size());
}

bool IsSampleFormat(std::string_view part)
{
    auto name = part.substr(0, part.find(' '));
    CutBack(name, "p");
    constexpr std::array<std::string_view, 6> formats = { "u8", "s16", "s32", "s64", "flt", "dbl" };
    return std::find(formats.begin(), formats.end(), name) != formats.end();
}

std::string ChannelText(int channels)
{
    switch (channels) {
    case 1:
        return "mono";
    case 2:
        return "stereo";
    case 6:
        return "5:1";
    default:
        return std::to_string(channels) + " channels";
    }
}

struct PixelRow {
    std::string_view start; // of the format's name
    std::string_view word;  // what stands for it
};

// The rules know a pixel format by one of seven words; these have none of them.
constexpr PixelRow kPixelFormats[] = {
    { "none", "" }, // standing for nothing, it would only hide the size
    { "gb", "rgb24" },
    { "bayer", "rgb24" },
    { "ya", "gray" },
    { "", "yuv420p" },
};

std::string_view PixelFormatWord(std::string_view part)
{
    const auto name = part.substr(0, part.find('('));
    constexpr std::array<std::string_view, 7> known = { "yuv", "rgb", "bgr", "uyvy", "gray", "pal", "mono" };
    if (std::any_of(known.begin(), known.end(), [&](std::string_view word) { return Contains(name, word); }))
        return name;
    return std::find_if(std::begin(kPixelFormats), std::end(kPixelFormats), [&](const PixelRow& row) {
        return name.starts_with(row.start);
    })->word;
}

/// The "WxH" that a part begins with; empty for another part.
std::string_view SizeOf(std::string_view part)
{
    const auto width = DigitsAt(part);
    if (width == 0 || width >= part.size() || part[width] != 'x')
        return {};
    const auto height = DigitsAt(part.substr(width + 1));
    return height == 0 ? std::string_view() : part.substr(0, width + 1 + height);
}

/// The aspect in "SAR 64:45 DAR 16:9", with or without brackets around; 0 when the text holds none.
float DisplayAspectOf(std::string_view part)
{
    constexpr std::string_view mark = "DAR ";
    const auto at = part.find(mark);
    if (at == std::string_view::npos)
        return 0;
    const auto ratio = part.substr(at + mark.size());
    const auto below = ratio.find(':');
    const float height = below == std::string_view::npos ? 0 : FloatOfText(ratio.substr(below + 1));
    return height > 0 ? FloatOfText(ratio) / height : 0;
}

/// A rate with two decimals: "25" is 25.00, "1k" is 1000.00, "0.0000" is 0.00.
std::string RateText(std::string_view rate)
{
    rate = Trimmed(rate);
    if (CutBack(rate, "k"))
        return std::string(rate) + "000.00";
    const auto point = rate.find('.');
    if (point == std::string_view::npos)
        return std::string(rate) + ".00";
    auto text = std::string(rate.substr(0, point + 3));
    return text.append(point + 3 - text.size(), '0');
}

struct VideoFacts {
    std::string_view pixelFormat, size, bitRate, frameRate, nominalRate;
    float displayAspect = 0;
};

void ReadVideoPart(std::string_view part, bool second, VideoFacts& facts)
{
    const bool aspectAlone = part.starts_with("SAR ") || part.starts_with("PAR ");
    if (const float aspect = DisplayAspectOf(part); aspect > 0 && (aspectAlone || !SizeOf(part).empty()))
        facts.displayAspect = aspect; // one that stands alone comes later and counts
    auto rate = part;
    CutBack(rate, "(r)");
    if (const auto size = SizeOf(part); !size.empty())
        facts.size = size;
    else if (const auto bitRate = BitRateOf(part))
        facts.bitRate = *bitRate;
    else if (CutBack(rate, " fps"))
        facts.frameRate = rate;
    else if (CutBack(rate, " tbr"))
        facts.nominalRate = rate;
    else if (second && !aspectAlone && !rate.ends_with(" tbn") && !rate.ends_with(" tbc") && !rate.ends_with(" kb/s"))
        facts.pixelFormat = PixelFormatWord(part);
}

void AppendPart(std::string& text, std::string_view part)
{
    if (!part.empty())
        text.append(", ").append(part);
}

} // namespace

ClassicFacts ToClassicAudio(std::string_view facts, StreamDialect dialect)
{
    ClassicFacts classic;
    CutDispositions(facts);
    const auto parts = SplitParts(facts);
    std::string_view rate = "0 Hz";
    std::string_view bitRate;
    std::optional<int> channels;
    for (std::size_t i = 1; i < parts.size(); ++i) {
        const auto part = parts[i];
        if (part.ends_with(" Hz"))
            rate = part;
        else if (const auto found = BitRateOf(part))
            bitRate = *found;
        else if (!channels && !IsSampleFormat(part))
            channels = ChannelsOfLayout(part);
    }
    classic.text = CodecText(parts[0], dialect);
    AppendPart(classic.text, rate);
    AppendPart(classic.text, ChannelText(channels.value_or(0)));
    AppendPart(classic.text, bitRate);
    return classic;
}

ClassicFacts ToClassicVideo(std::string_view facts, StreamDialect dialect)
{
    ClassicFacts classic;
    classic.attachedPicture = CutDispositions(facts);
    const auto parts = SplitParts(facts);
    VideoFacts video;
    for (std::size_t i = 1; i < parts.size(); ++i)
        ReadVideoPart(parts[i], i == 1, video);
    classic.nominalRateOnly = video.frameRate.empty() && !video.nominalRate.empty();
    classic.displayAspect = video.displayAspect;
    // As in "yuv420p(tv, top first)" and "yuv420p(bottom coded first (swapped))".
    classic.interlaced = parts.size() > 1 && Contains(parts[1], " first");
    if (const auto cross = video.size.find('x'); cross != std::string_view::npos) {
        classic.width = IntegerOfText(video.size).value_or(0);
        classic.height = IntegerOfText(video.size.substr(cross + 1)).value_or(0);
    }
    classic.text = CodecText(parts[0], dialect);
    AppendPart(classic.text, video.pixelFormat);
    AppendPart(classic.text, video.size);
    AppendPart(classic.text, video.bitRate);
    if (const auto fps = classic.nominalRateOnly ? video.nominalRate : video.frameRate; !fps.empty())
        AppendPart(classic.text, RateText(fps) + " fps");
    return classic;
}

} // namespace zentaro
