#include "inspect/ReportParser.h"
#include "inspect/ToolDialect.h"

#include <benchmark/benchmark.h>

using namespace zentaro;

namespace {

/// A report of about that many bytes: a damaged film, whose diagnostics make up most of it, with many streams.
std::string LongReport(std::size_t bytes)
{
    std::string log = "/opt/zentaro/ffmpeg -i \"/media/clips/film.mkv\"\nffmpeg version 5.1\n";
    while (log.size() < bytes / 2)
        log +=
            "[h264 @ 0x5598f4c35b40] error while decoding MB 12 34, bytestream -5\n    Last message repeated 3 times\n";
    log += "Input #0, matroska,webm, from '/media/clips/film.mkv':\n  Metadata:\n    title           : Film\n"
           "  Duration: 01:30:00.04, start: 0.025057, bitrate: 128 kb/s\n"
           "  Stream #0:0(eng): Video: h264 (High) (avc1 / 0x31637661), yuv420p(tv, bt709, progressive), 1920x1080 "
           "[SAR 1:1 DAR 16:9], 5000 kb/s, 23.98 fps, 23.98 tbr, 1k tbn (default)\n";
    while (log.size() < bytes)
        log +=
            "  Stream #0:1(deu): Audio: aac (LC) (mp4a / 0x6134706D), 48000 Hz, 5.1(side), fltp, 384 kb/s (default)\n"
            "    Metadata:\n      handler_name    : SoundHandler\n";
    return log;
}

void ReadReport(benchmark::State& state)
{
    const auto log = LongReport(static_cast<std::size_t>(state.range(0)));
    const CodecNames names("aac,MPEG-4 AAC\nh264,H.264 (MPEG-4 AVC)\n");
    for ([[maybe_unused]] auto round : state) {
        const auto classic = ToClassicReport(log, "", "");
        auto report = ParseReport(classic.text, "film.mkv", names, names);
        PruneVideoStreams(report.streams);
        benchmark::DoNotOptimize(report);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(log.size()));
    state.SetComplexityN(state.range(0));
}

} // namespace

// 60 KB is a long report; the larger ones show that the time grows with the size alone.
BENCHMARK(ReadReport)->Arg(60'000)->Arg(600'000)->Arg(6'000'000)->Unit(benchmark::kMicrosecond)->Complexity();
BENCHMARK_MAIN();
