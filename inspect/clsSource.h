#pragma once

#include "base/Picture.h"
#include "inspect/Dictionary.h"
#include "inspect/Inspection.h"
#include "inspect/MpegReport.h"
#include "inspect/StreamInfo.h"
#include "inspect/Thumbnail.h"
#include "inspect/ToolDialect.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zentaro {

/// What is known about one media file: found out with the tools, or rebuilt from its dictionary.
class clsSource {
public:
    /// Can be rebuilt from a dictionary, but not inspect.
    clsSource() = default;
    explicit clsSource(InspectionContext context);

    /// Inspects the file, an absolute path. False when it cannot be played; `Outcome` has the reason, the boxes to
    /// show and the report. What an inspection that ran before left here is gone.
    bool GetVideoInformation(const std::string& FileName);
    const InspectionOutcome& Outcome() const { return m_outcome; }

    /// The stream's picture; no picture for an index outside of the streams, and setting one there changes nothing.
    Picture StreamImage(std::int32_t Index) const;
    void SetStreamImage(std::int32_t Index, Picture picture);
    /// One stream with the file's times; empty for an index outside of the streams.
    Dictionary StreamInfo(std::int32_t Index) const;

    /// The whole object without the pictures.
    Dictionary Serialize() const;
    /// Rebuilds what `Serialize` gave, but for the start time, which stays 0. Missing values are 0, false or empty.
    void UnSerialize(const Dictionary& Data);

    const std::string& fileName() const { return m_fileName; }
    std::int32_t StreamCount() const { return static_cast<std::int32_t>(m_streams.size()); }
    const std::string& TimeStamp() const { return m_timeStamp; }
    const MediaTags& Tags() const { return m_tags; }
    bool IsAVI() const { return m_isAvi; }
    float Duration() const { return m_duration; }   // s
    float StartTime() const { return m_startTime; } // s
    const std::vector<zentaro::StreamInfo>& Streams() const { return m_streams; }
    /// The size (px) in which the stream is to be seen: with square pixels, upright. Only for a stream of Streams().
    ThumbnailSize SizeAsSeen(std::size_t index) const;

private:
    bool Fail(std::string reason);
    bool FailForTrouble();
    bool Inspect(const std::string& fileName);
    std::optional<std::string> RunTool(const ToolCommand& command, const std::string& logFile);
    bool ReadStreams(const std::string& log, const ToolCommand& command);
    void ReadAviDelays();
    bool RefineMpeg();
    std::optional<MpegFacts> FactsOfMpgtx();
    std::optional<MpegFacts> FactsWithoutMpgtx() const;
    void Refine(zentaro::StreamInfo& video, const MpegFacts& facts) const;
    void CompleteVideoRecords();
    void MakeThumbnails();
    void MakeCoverPicture();
    void GivePicture(zentaro::StreamInfo& info, const Picture& picture);
    zentaro::StreamInfo* FirstVideoRecord();
    const zentaro::StreamInfo* At(std::int32_t index) const;

    InspectionContext m_context;
    InspectionOutcome m_outcome;
    std::string m_fileName;
    std::string m_timeStamp;
    MediaTags m_tags;
    float m_duration = 0;
    float m_startTime = 0;
    bool m_isAvi = false;
    std::vector<zentaro::StreamInfo> m_streams;
    std::vector<StreamHint> m_hints; // one for each stream
    std::optional<CoverHint> m_cover;
    bool m_classicTool = false;
};

} // namespace zentaro
