#include "inspect/clsSource.h"

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/Words.h"
#include "inspect/ReportParser.h"
#include "inspect/StreamReport.h"
#include "inspect/Thumbnail.h"
#include "platform/ChildProcess.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace zentaro {

namespace {

constexpr std::size_t kLogLimit = 64 << 20; // bytes; far above any report, and memory stays bounded

bool IsMpegFile(const std::string& path, char separator)
{
    constexpr std::array<std::string_view, 7> extensions = { "mpg", "vob", "mpeg", "m2p", "mpv", "m1v", "m2v" };
    const auto extension = LowerExtension(path, separator);
    return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

std::string TroubleText(FileTrouble trouble)
{
    switch (trouble) {
    case FileTrouble::Missing:
        return Words("There is no such file.");
    case FileTrouble::Folder:
        return Words("It is a folder, not a file.");
    case FileTrouble::Empty:
        return Words("The file is empty.");
    case FileTrouble::Unreadable:
        return Words("The file cannot be read. It may belong to another user, or its drive may be damaged.");
    case FileTrouble::None:
        break;
    }
    return "";
}

/// "PROGRAM -i "FILE"" and what follows.
ToolCommand InfoCommand(const std::string& program, const std::string& fileName, std::vector<std::string> more)
{
    ToolCommand command{ program, { "-i", fileName }, program + " -i \"" + fileName + "\"" };
    for (auto& argument : more) {
        command.text += " " + argument;
        command.arguments.push_back(std::move(argument));
    }
    return command;
}

} // namespace

clsSource::clsSource(InspectionContext context)
    : m_context(std::move(context))
{
}

bool clsSource::GetVideoInformation(const std::string& FileName)
{
    *this = clsSource(std::move(m_context));
    m_outcome.succeeded = Inspect(FileName);
    return m_outcome.succeeded;
}

bool clsSource::Fail(std::string reason)
{
    m_outcome.error = std::move(reason);
    return false;
}

bool clsSource::Inspect(const std::string& fileName)
{
    m_fileName = fileName;
    // The option stands behind the file, where current tools pass over it: in front it would spoil the report.
    const auto command = InfoCommand(m_context.ffmpeg, fileName, { "-analyzeduration", "30000" });
    const auto log = RunTool(command, m_context.workingFolder + "analyse.txt");
    if (!log)
        return false;
    if (log->empty() || !ReadStreams(*log, command))
        return FailForTrouble();
    ReadAviDelays();
    if (IsMpegFile(fileName, m_context.separator) && !RefineMpeg())
        return false;
    CompleteVideoRecords();
    if (m_streams.size() == 1 && m_streams[0].Type == kAudioStream)
        m_streams[0].Picture = m_context.defaultAudioPicture;
    if (FirstVideoRecord() == nullptr && !m_streams.empty())
        m_outcome.lastPicture = m_context.defaultAudioPicture;
    m_outcome.report = StreamReport(m_fileName, m_duration, m_startTime, m_streams);
    if (const auto facts = m_context.files->Facts(fileName))
        m_timeStamp = facts->lastModified;
    m_context.reportRead();
    MakeThumbnails();
    if (FirstVideoRecord() == nullptr)
        MakeCoverPicture();
    return true;
}

/// Adds to the reason what keeps the file from being read: to the tools it is all the same.
bool clsSource::FailForTrouble()
{
    const auto trouble = TroubleText(m_context.files->Trouble(m_fileName));
    return Fail(m_outcome.error + (m_outcome.error.empty() || trouble.empty() ? "" : "\r\n") + trouble);
}

/// What the tool printed; nothing when it could not be run, and then the reason is left in the outcome.
std::optional<std::string> clsSource::RunTool(const ToolCommand& command, const std::string& logFile)
{
    auto limited = command;
    limited.limit = m_context.reportLimit;
    const auto captured = m_context.tools->Capture(limited, logFile);
    if (!captured) {
        const auto& error = captured.error();
        m_outcome.error = error.number == kToolHangs ? kHangsText : error.text;
        if (error.number == static_cast<std::int32_t>(platform::StartStep::Process)) {
            const auto tool = FileNamePart(command.program, m_context.separator);
            m_outcome.error += "\r\nThe program \"" + tool
                + "\", which reads media files for Zentaro, is missing or cannot" + " be started. "
                + m_context.installAdvice(tool);
        }
        m_context.files->Remove(logFile);
        return std::nullopt;
    }
    auto log = m_context.files->Read(logFile, kLogLimit);
    m_context.files->Remove(logFile);
    return log ? std::move(log) : std::string();
}

bool clsSource::ReadStreams(const std::string& log, const ToolCommand& command)
{
    const auto classic = ToClassicReport(log, command.text, m_fileName);
    auto parsed = ParseReport(classic.text, m_fileName, *m_context.audioCodecNames, *m_context.videoCodecNames);
    m_outcome.messages = std::move(parsed.messages);
    m_duration = parsed.duration;
    m_startTime = parsed.startTime;
    m_classicTool = classic.classicTool;
    m_cover = classic.cover;
    m_tags = classic.tags;
    if (parsed.error.empty())
        PruneVideoStreams(parsed.streams);
    for (auto& stream : parsed.streams) {
        m_streams.push_back(std::move(stream.info));
        m_hints.push_back(classic.streams[stream.line]);
    }
    return parsed.error.empty() || Fail(std::move(parsed.error));
}

/// Stream numbers of the AVI file and records are taken to agree.
void clsSource::ReadAviDelays()
{
    const auto aviStreams = m_context.readAviStreams(m_fileName);
    m_isAvi = aviStreams.has_value();
    if (!aviStreams)
        return;
    for (std::size_t i = 0; i < std::min(aviStreams->size(), m_streams.size()); ++i)
        if ((*aviStreams)[i].isAudio)
            m_streams[i].Delay = (*aviStreams)[i].delay;
}

bool clsSource::RefineMpeg()
{
    const auto facts = m_context.mpgtx.empty() ? FactsWithoutMpgtx() : FactsOfMpgtx();
    if (!facts)
        return false;
    auto* const video = FirstVideoRecord();
    if (video != nullptr)
        Refine(*video, *facts);
    return true;
}

/// Nothing when the tool could not be run.
std::optional<MpegFacts> clsSource::FactsOfMpgtx()
{
    const auto command = InfoCommand(m_context.mpgtx, m_fileName, {});
    const auto log = RunTool(command, m_context.workingFolder + "mpgtx.txt");
    if (!log)
        return std::nullopt;
    return ParseMpegReport(ToClassicMpegReport(*log, command.text, m_fileName));
}

/// What the first tool has said beyond the records, in the words of the second one, which only knows these shapes.
std::optional<MpegFacts> clsSource::FactsWithoutMpgtx() const
{
    MpegFacts facts;
    for (std::size_t i = 0; i < m_streams.size(); ++i) {
        if (m_streams[i].Type != kVideoStream)
            continue;
        facts.interlaced = m_hints[i].interlaced;
        facts.aspect = KnownAspect(m_hints[i].displayAspect);
        break;
    }
    return facts;
}

void clsSource::Refine(zentaro::StreamInfo& video, const MpegFacts& facts) const
{
    if (facts.frameRate != 0)
        video.FPS = facts.frameRate;
    if (facts.aspect != 0)
        video.DisplayAR = facts.aspect;
    if (facts.interlaced)
        video.Interlaced = true;
    if (facts.bitRate != 0)
        video.BitRate = facts.bitRate;
    // What the file's size leaves for the film is trusted above what either tool printed.
    const auto file = m_context.files->Facts(m_fileName);
    if (!file || m_duration == 0)
        return;
    const double bytesPerSecond = RoundHalfEven(static_cast<double>(file->size) / static_cast<double>(m_duration));
    double rate = RoundHalfEven(bytesPerSecond / 1000 * 8);
    for (const auto& info : m_streams)
        if (info.Type == kAudioStream)
            rate -= info.BitRate;
    video.BitRate = RoundHalfEven(rate);
}

void clsSource::CompleteVideoRecords()
{
    for (auto& info : m_streams) {
        if (info.Type != kVideoStream)
            continue;
        if (info.Height != 0)
            info.SourceAR = static_cast<float>(static_cast<double>(info.Width) / info.Height);
        if (info.DisplayAR == 0)
            info.DisplayAR = 1;
        GivePicture(info, m_context.defaultVideoPicture);
    }
}

void clsSource::MakeThumbnails()
{
    const ThumbnailMaker maker(m_context, m_classicTool);
    const bool several = std::count_if(m_streams.begin(), m_streams.end(), [](const auto& info) {
        return info.Type == kVideoStream;
    }) > 1;
    for (std::size_t i = 0; i < m_streams.size(); ++i) {
        auto& info = m_streams[i];
        if (info.Type != kVideoStream)
            continue;
        // Left to itself the tool takes the largest film for every record.
        const auto stream = several ? std::optional(m_hints[i].number) : std::nullopt;
        const bool lying = m_hints[i].lying && !m_classicTool;
        const auto picture = maker.RenderThumbnail(
            { m_fileName, ThumbnailSizeOf(info.Width, info.Height, lying), ThumbnailTime(m_duration), stream },
            &m_outcome.lastPictureFile);
        if (picture.IsEmpty())
            m_outcome.messages.push_back(
                { Words("Cannot render thumbnail for %1. The video codec may be unsupported.", { m_fileName }) });
        GivePicture(info, picture.IsEmpty() ? m_context.defaultVideoPicture : picture);
    }
}

ThumbnailSize clsSource::SizeAsSeen(std::size_t index) const
{
    ThumbnailSize size{ m_streams[index].Width, m_streams[index].Height };
    if (index >= m_hints.size())
        return size;
    const double aspect = static_cast<double>(m_hints[index].displayAspect);
    // What is told of square pixels is rounded, too.
    if (aspect > 0 && std::abs(aspect * size.height - size.width) > 2)
        size.width = RoundHalfEven(size.height * aspect);
    if (m_hints[index].lying)
        std::swap(size.width, size.height);
    return size;
}

/// A file of sound alone shows its cover in the list when it has one.
void clsSource::MakeCoverPicture()
{
    if (!m_cover)
        return;
    const auto picture = ThumbnailMaker(m_context, m_classicTool)
                             .RenderThumbnail({ m_fileName, ThumbnailSizeOf(m_cover->width, m_cover->height, false),
                                                  std::nullopt, std::nullopt },
                                 &m_outcome.lastPictureFile);
    if (!picture.IsEmpty())
        m_outcome.lastPicture = picture;
}

void clsSource::GivePicture(zentaro::StreamInfo& info, const Picture& picture)
{
    info.Picture = picture;
    m_outcome.lastPicture = picture;
}

zentaro::StreamInfo* clsSource::FirstVideoRecord()
{
    const auto found =
        std::find_if(m_streams.begin(), m_streams.end(), [](const auto& info) { return info.Type == kVideoStream; });
    return found == m_streams.end() ? nullptr : &*found;
}

const zentaro::StreamInfo* clsSource::At(std::int32_t index) const
{
    return index >= 0 && index < StreamCount() ? &m_streams[static_cast<std::size_t>(index)] : nullptr;
}

Picture clsSource::StreamImage(std::int32_t Index) const
{
    const auto* const info = At(Index);
    return info ? info->Picture : Picture();
}

void clsSource::SetStreamImage(std::int32_t Index, Picture picture)
{
    if (At(Index))
        m_streams[static_cast<std::size_t>(Index)].Picture = std::move(picture);
}

Dictionary clsSource::StreamInfo(std::int32_t Index) const
{
    Dictionary data;
    const auto* const info = At(Index);
    if (!info)
        return data;
    if (info->Type == kVideoStream) {
        data.Set("FPS", info->FPS);
        data.Set("Width", info->Width);
        data.Set("Height", info->Height);
        data.Set("SourceAR", info->SourceAR);
        data.Set("DisplayAR", info->DisplayAR);
        data.Set("Interlaced", info->Interlaced);
    } else {
        data.Set("Channels", info->Channels);
        data.Set("SampleRate", info->SampleRate);
        data.Set("Delay", info->Delay);
    }
    data.Set("Type", info->Type);
    data.Set("Index", info->Index);
    data.Set("Duration", m_duration);
    data.Set("StartTime", m_startTime);
    data.Set("Compression", info->Compression);
    data.Set("BitRate", info->BitRate);
    return data;
}

} // namespace zentaro
