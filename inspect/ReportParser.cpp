#include "inspect/ReportParser.h"

#include "base/Words.h"
#include "inspect/TextValues.h"

#include <algorithm>
#include <array>
#include <optional>

namespace zentaro {

namespace {

constexpr std::string_view kAudioMark = "Audio: ";
constexpr std::string_view kVideoMark = "Video: ";
constexpr std::string_view kStreamMark = "Stream #";
constexpr std::string_view kStartMark = "start: ";
constexpr std::string_view kDurationMark = "  Duration: ";
constexpr float kFastestFilm = 250;

using Parts = std::vector<std::string_view>;

Parts SplitAtCommas(std::string_view text)
{
    Parts parts;
    for (auto cut = text.find(", "); cut != std::string_view::npos; cut = text.find(", ")) {
        parts.push_back(text.substr(0, cut));
        text.remove_prefix(cut + 2);
    }
    parts.push_back(text);
    return parts;
}

/// Empty for a part that the line does not have: it converts to nothing either.
std::string_view PartAt(const Parts& parts, std::size_t index)
{
    return index < parts.size() ? parts[index] : std::string_view();
}

std::string_view WithoutLast(std::string_view text, std::size_t count)
{
    return text.substr(0, text.size() - std::min(count, text.size()));
}

void AssignInteger(std::int32_t& field, std::string_view text)
{
    if (const auto value = IntegerOfText(text))
        field = *value;
}

std::int32_t ReadChannels(std::string_view text)
{
    if (text == "stereo")
        return 2;
    if (text == "mono")
        return 1;
    const auto front = TextBefore(text, ":");
    std::int32_t channels = 0;
    AssignInteger(channels, front ? *front : WithoutLast(text, std::string_view(" channels").size()));
    return channels == 5 ? 6 : channels; // "5:1" means five and one
}

void ReadAudio(std::string_view text, const CodecNames& names, StreamInfo& info)
{
    const auto parts = SplitAtCommas(text);
    info.Type = kAudioStream;
    info.Compression = names.DisplayName(parts[0]);
    AssignInteger(info.SampleRate, WithoutLast(PartAt(parts, 1), std::string_view(" Hz").size()));
    info.Channels = ReadChannels(PartAt(parts, 2));
    if (parts.size() == 4)
        if (const auto rate = TextBefore(parts[3], " "))
            AssignInteger(info.BitRate, *rate);
}

bool NamesPixelFormat(std::string_view text)
{
    constexpr std::array<std::string_view, 7> words = { "yuv", "rgb", "bgr", "uyvy", "gray", "pal", "mono" };
    return std::any_of(words.begin(), words.end(), [&](std::string_view word) { return Contains(text, word); });
}

void ReadVideo(std::string_view text, const CodecNames& names, StreamInfo& info)
{
    const auto parts = SplitAtCommas(text);
    info.Type = kVideoStream;
    info.Compression = names.DisplayName(parts[0]);
    std::size_t k = NamesPixelFormat(PartAt(parts, 1)) ? 2 : 1;
    if (const auto cross = PartAt(parts, k).find('x'); cross != std::string_view::npos) {
        AssignInteger(info.Width, parts[k].substr(0, cross));
        AssignInteger(info.Height, parts[k].substr(cross + 1));
        ++k;
    }
    if (Contains(PartAt(parts, k), " kb/s")) {
        AssignInteger(info.BitRate, *TextBefore(parts[k], " "));
        ++k;
    }
    if (Contains(PartAt(parts, k), " fps"))
        info.FPS = FloatOfText(*TextBefore(parts[k], " "));
}

bool IsUnsupportedAudio(std::string_view name)
{
    return name == "Windows Media Audio Professional v9" || name == "Windows Media Audio v9" || Contains(name, " / ")
        || Contains(name, "0x");
}

bool IsToBePruned(const StreamInfo& info)
{
    return info.Type == kVideoStream && (info.Width == 0 || info.Height == 0 || info.FPS > kFastestFilm);
}

class Reader {
public:
    Reader(const std::string& fileName, const CodecNames& audioNames, const CodecNames& videoNames)
        : m_fileName(fileName)
        , m_audioNames(audioNames)
        , m_videoNames(videoNames)
    {
    }

    ParsedReport Read(std::string_view text)
    {
        while (const auto line = NextLine(text)) {
            ReadLine(*line);
            if (!m_report.error.empty())
                return std::move(m_report);
        }
        if (!m_recognised)
            m_report.error = kUnsupportedFile;
        return std::move(m_report);
    }

private:
    void ReadLine(std::string_view line)
    {
        m_recognised = m_recognised || Contains(line, "Input");
        if (Contains(line, "Unknown format") || Contains(line, "could not find codec parameters")) {
            m_report.error = kUnsupportedFile;
            return;
        }
        if (line.starts_with('[')) // the tool talking to itself
            return;
        ReadStream(line);
        if (line.starts_with(kDurationMark) && !ReadDuration(line)) {
            m_report.error = kIncompleteFile;
            return;
        }
        if (const auto at = line.find(kStartMark); at != std::string_view::npos) {
            const auto rest = line.substr(at + kStartMark.size());
            m_report.startTime = FloatOfText(rest.substr(0, rest.find(',')));
        }
    }

    void ReadStream(std::string_view line)
    {
        if (const auto at = line.find(kStreamMark); at != std::string_view::npos) {
            // The digit behind "#0.": one character, also of a longer number.
            const auto digit = at + kStreamMark.size() + 2;
            m_number = digit < line.size() ? IntegerOfText(line.substr(digit, 1)).value_or(0) : 0;
        }
        const auto audio = line.find(kAudioMark);
        const auto video = line.find(kVideoMark);
        if (audio == std::string_view::npos && video == std::string_view::npos)
            return;
        ParsedStream stream{ {}, m_streamLines++ };
        stream.info.Index = m_number;
        if (audio != std::string_view::npos)
            ReadAudio(line.substr(audio + kAudioMark.size()), m_audioNames, stream.info);
        else
            ReadVideo(line.substr(video + kVideoMark.size()), m_videoNames, stream.info);
        if (stream.info.Type == kAudioStream && IsUnsupportedAudio(stream.info.Compression))
            m_report.messages.push_back(
                { Words("The audio format %1 in file %2 is currently unsupported. It will not be added to the project.",
                    { stream.info.Compression, m_fileName }) });
        else
            m_report.streams.push_back(std::move(stream));
    }

    bool ReadDuration(std::string_view line)
    {
        if (const auto comma = line.find(','); comma != std::string_view::npos)
            m_report.duration = ParseTime(line.substr(kDurationMark.size(), comma - kDurationMark.size()));
        return m_report.duration != 0;
    }

    const std::string& m_fileName;
    const CodecNames& m_audioNames;
    const CodecNames& m_videoNames;
    ParsedReport m_report;
    bool m_recognised = false;
    std::int32_t m_number = 0;
    std::size_t m_streamLines = 0;
};

} // namespace

float ParseTime(std::string_view text)
{
    if (text == "N/A")
        return 0;
    const auto column = [&](std::size_t at, std::size_t count) {
        return at < text.size() ? ValueOfText(text.substr(at, count)) : 0;
    };
    return static_cast<float>(column(0, 2) * 3600 + column(3, 2) * 60 + column(6, 2) + column(9, 1) * 0.1);
}

void PruneVideoStreams(std::vector<ParsedStream>& streams)
{
    std::size_t kept = 0;
    bool movedIntoGap = false;
    for (auto& stream : streams) {
        const bool removed = !movedIntoGap && IsToBePruned(stream.info);
        movedIntoGap = removed;
        if (removed)
            continue;
        if (&streams[kept] != &stream)
            streams[kept] = std::move(stream);
        ++kept;
    }
    streams.resize(kept);
}

ParsedReport ParseReport(
    std::string_view text, const std::string& fileName, const CodecNames& audioNames, const CodecNames& videoNames)
{
    return Reader(fileName, audioNames, videoNames).Read(text);
}

} // namespace zentaro
