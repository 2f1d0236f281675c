#include "inspect/ToolDialect.h"

#include "inspect/ClassicFacts.h"
#include "inspect/StreamLine.h"
#include "inspect/TextValues.h"

#include <algorithm>

namespace zentaro {

namespace {

constexpr std::string_view kInputMark = "Input #0, ";
constexpr std::string_view kDurationMark = "  Duration: ";
constexpr std::string_view kGroupMark = "  Stream group #";

/// The log behind its first line, which is the command and may itself hold line breaks.
std::string_view WithoutCommand(std::string_view log, std::string_view commandText)
{
    if (!commandText.empty() && log.starts_with(commandText))
        log.remove_prefix(commandText.size());
    NextLine(log);
    return log;
}

/// "Input #0, mp3, from 'NAME':" without the name; `rest` continues behind the name, however many lines it has.
std::string InputLine(std::string_view line, std::string_view& rest, std::string_view inputName)
{
    constexpr std::string_view fromMark = ", from '";
    const auto from = line.find(fromMark);
    if (from == std::string_view::npos)
        return std::string(line);
    const auto* const nameStart = line.data() + from + fromMark.size();
    const std::string_view behind(nameStart, static_cast<std::size_t>(rest.data() + rest.size() - nameStart));
    if (Contains(inputName, "\n") && behind.starts_with(inputName)) {
        rest = behind.substr(inputName.size());
        NextLine(rest);
    }
    return std::string(line.substr(0, from)) + ":";
}

/// The rules read fixed columns, which have room for 99 hours and for no sign.
std::string DurationLine(std::string_view line)
{
    const auto time = line.substr(kDurationMark.size());
    const auto hours = std::min(time.find_first_not_of("0123456789"), time.size());
    if (hours > 2 && time.substr(hours).starts_with(':')) {
        const auto end = std::min(time.find(','), time.size());
        return std::string(kDurationMark).append("99:59:59.9").append(time.substr(end));
    }
    if (time.starts_with('-'))
        return std::string(kDurationMark).append("N/A").append(time.substr(std::min(time.find(','), time.size())));
    return std::string(line);
}

/// Passes on a line that is no stream's: it must not be read as one, so that lines and hints stay in step.
void AppendLine(std::string& text, std::string_view line)
{
    for (const auto mark : { "Stream #", "Audio: ", "Video: " })
        line = line.substr(0, line.find(mark));
    text.append(line).append("\n");
}

/// The angle in "displaymatrix: rotation of -90.00 degrees", brought to a quarter turn or not.
bool TurnsByAQuarter(std::string_view line)
{
    constexpr std::string_view mark = "displaymatrix: rotation of ";
    const auto at = line.find(mark);
    if (at == std::string_view::npos)
        return false;
    const double angle = ValueOfText(line.substr(at + mark.size()));
    return angle == 90 || angle == -90 || angle == 270 || angle == -270;
}

/// Takes the lines behind the duration, one after the other.
class StreamLineReader {
public:
    explicit StreamLineReader(ClassicReport& report)
        : m_report(report)
    {
    }

    void Read(std::string_view line)
    {
        if (line.starts_with(kGroupMark))
            m_grouped = true;
        const auto stream = TakeApart(line);
        if (stream && IsAtStreamLevel(*stream)) {
            m_inSideData = false;
            m_inSound = stream->kind == StreamKind::Audio;
            m_current = Pass(*stream);
        } else if (Trimmed(line) == "Side data:") {
            m_inSideData = true;
        } else if (m_inSideData && m_current && TurnsByAQuarter(line)) {
            m_report.streams.back().lying = true;
        }
    }
    /// The lines that follow tell of a stream of sound.
    bool IsInSound() const { return m_inSound; }

private:
    /// Tags are printed deeper than the streams they belong to, so they cannot pass for one.
    bool IsAtStreamLevel(const StreamLine& stream)
    {
        if (m_indent == 0)
            m_indent = stream.indent;
        return stream.indent == m_indent || (m_grouped && (stream.indent == 2 || stream.indent == 4));
    }

    /// True when the line has become a line of the classic report.
    bool Pass(const StreamLine& stream)
    {
        if (stream.kind == StreamKind::Other)
            return false;
        const bool video = stream.kind == StreamKind::Video;
        const auto facts =
            video ? ToClassicVideo(stream.facts, stream.dialect) : ToClassicAudio(stream.facts, stream.dialect);
        // Before covers were marked, only the clock of 90 kHz in the place of a rate gave them away.
        const bool cover = facts.attachedPicture
            || (facts.nominalRateOnly && stream.dialect == StreamDialect::Current
                && Contains(facts.text, "90000.00 fps"));
        if (cover && !m_report.cover)
            m_report.cover = CoverHint{ facts.width, facts.height };
        if (facts.attachedPicture)
            return false;
        m_report.streams.push_back(
            { IntegerOfText(stream.number).value_or(0), facts.displayAspect, false, facts.interlaced });
        m_report.text.append("  Stream #0.").append(stream.number).append(stream.tags);
        m_report.text.append(video ? ": Video: " : ": Audio: ").append(facts.text).append("\n");
        return true;
    }

    ClassicReport& m_report;
    std::size_t m_indent = 0; // of the first stream line
    bool m_grouped = false;
    bool m_inSideData = false;
    bool m_inSound = false;
    bool m_current = false; // the last stream line was passed on
};

} // namespace

ClassicReport ToClassicReport(std::string_view log, std::string_view commandText, std::string_view inputName)
{
    ClassicReport report;
    auto rest = WithoutCommand(log, commandText);
    auto line = NextLine(rest);
    for (; line && !line->starts_with(kInputMark); line = NextLine(rest))
        report.classicTool = report.classicTool || line->starts_with("FFmpeg version");
    if (!line)
        return report;
    AppendLine(report.text, InputLine(*line, rest, inputName));

    for (line = NextLine(rest); line && !line->starts_with(kDurationMark); line = NextLine(rest))
        ReadTagLine(*line, true, report.tags);
    if (!line)
        return report;
    AppendLine(report.text, DurationLine(*line));

    StreamLineReader streams(report);
    while ((line = NextLine(rest))) {
        streams.Read(*line);
        ReadTagLine(*line, streams.IsInSound(), report.tags);
    }
    return report;
}

std::string ToClassicMpegReport(std::string_view log, std::string_view commandText, std::string_view inputName)
{
    struct Row {
        std::string_view start; // of the tool's line
        std::string_view passed;
    };
    // "Not interlaced" is left out: the rules hear only the second word of it.
    constexpr Row rows[] = {
        { "  Muxrate ", "  Muxrate " },
        { "  Aspect ratio ", "  Aspect ratio " },
        { "  Interlaced", "  interlaced" },
        { "  Size [", "  Size [" },
    };
    std::string text;
    auto rest = WithoutCommand(log, commandText);
    while (!rest.empty()) {
        if (!inputName.empty() && rest.starts_with(inputName))
            rest.remove_prefix(inputName.size());
        const auto line = NextLine(rest).value_or(std::string_view());
        for (const auto& row : rows)
            if (line.starts_with(row.start))
                text.append(row.passed).append(line.substr(row.start.size())).append("\n");
    }
    return text;
}

} // namespace zentaro
