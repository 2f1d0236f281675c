#include "inspect/MpegReport.h"
#include "inspect/ReportParser.h"
#include "inspect/StreamReport.h"
#include "inspect/Thumbnail.h"
#include "inspect/ToolDialect.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace zentaro;

// Whatever a tool prints is read to the end, through the dialect and literally, and what comes out can be shown.

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void ReadReport(std::string_view text, const std::string& name, std::size_t lineCount)
{
    const CodecNames names("mp3,MP3\nh264,H.264\n");
    auto report = ParseReport(text, name, names, names);
    const auto before = report.streams.size();
    PruneVideoStreams(report.streams);
    Require(report.streams.size() <= before);
    std::vector<StreamInfo> streams;
    for (const auto& stream : report.streams) {
        Require(stream.line < lineCount);
        streams.push_back(stream.info);
        const auto size = ThumbnailSizeOf(stream.info.Width, stream.info.Height, true);
        Require(size.width >= 2 && size.height >= 2);
    }
    Require(StreamReport(name, report.duration, report.startTime, streams).starts_with("Stream information of "));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string log(reinterpret_cast<const char*>(data), size);
    // A name may be any text, so also one that the report is made of.
    const auto name = log.substr(0, log.find('"'));
    const auto classic = ToClassicReport(log, log.substr(0, size / 8), name);
    ReadReport(classic.text, name, classic.streams.size());
    ReadReport(log, name, size + 1);

    // What has become classic is read once more with the same streams.
    if (classic.text.starts_with("Input #0, "))
        Require(ToClassicReport("x\n" + classic.text, "", "").streams.size() == classic.streams.size());

    ParseMpegReport(ToClassicMpegReport(log, "", name));
    ParseMpegReport(log);
    return 0;
}
