#include "inspect/clsAVIDelay.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

using namespace zentaro;
namespace fs = std::filesystem;

/// A 1080p file with MP3 sound, made once by ffmpeg.
class RealFile {
public:
    RealFile()
        : m_path((fs::temp_directory_path() / "zentaro-bench.avi").string())
    {
        const auto command =
            "ffmpeg -v error -y -nostdin -f lavfi -i testsrc2=s=1920x1080:r=25:d=8 -f lavfi -i sine=d=8 "
            "-c:v mpeg4 -q:v 4 -c:a libmp3lame -b:a 192k '"
            + m_path + "'";
        m_made = std::system(command.c_str()) == 0;
    }
    RealFile(const RealFile&) = delete;
    RealFile& operator=(const RealFile&) = delete;
    ~RealFile() { fs::remove(m_path); }
    bool IsMade() const { return m_made; }
    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
    bool m_made = false;
};

void WalkOfARealFile(benchmark::State& state)
{
    static const RealFile file;
    if (!file.IsMade())
        return state.SkipWithError("ffmpeg made no file");
    for (auto _ : state) {
        clsAVIDelay avi;
        if (!avi.OpenFile(file.Path()) || avi.StreamDelay(1) != 0)
            return state.SkipWithError("not read as it should be");
    }
    state.counters["MB"] = static_cast<double>(fs::file_size(file.Path())) / 1e6;
}
BENCHMARK(WalkOfARealFile)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
