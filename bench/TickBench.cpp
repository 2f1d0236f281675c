// What the position timer costs every 500 ms beside the engine's own reads: the rules, and the real window with what it
// paints after them. The engine answers at once.
#include "app/frmMain.h"
#include "playback/VideoFrame.h"
#include "tests/world/NoPreviews.h"
#include "tests/world/World.h"

#include <QApplication>
#include <benchmark/benchmark.h>

#include <filesystem>

namespace zentaro {
namespace {

class InstantEngine : public Engine {
public:
    void SetVolume(int) override { }
    void SetMute(bool) override { }
    double Length() override { return kLength; }
    double Time() override { return m_time = m_time + 500 < kLength - 1000 ? m_time + 500 : 0; }
    double Position() override { return m_time / kLength; }
    void SetPosition(double) override { }
    int State() override { return kPlaying; }
    double Rate() override { return 1; }
    void SetRate(double) override { }
    bool HasVideoOutput() override { return true; }
    void Navigate(DiscKey) override { }
    std::vector<DiscPart> Titles() override { return {}; }
    int Title() override { return -1; }
    void SetTitle(int) override { }
    std::vector<DiscPart> Chapters() override { return {}; }
    int Chapter() override { return -1; }
    void SetChapter(int) override { }
    bool TakeSnapshot(const std::string&) override { return false; }
    void Add(const MediaLocation&, const EngineOptions&) override { }
    void Play() override { }
    void TogglePause() override { }
    void SetPause(bool) override { }
    void Stop() override { }
    int ItemCount() override { return 1; }

private:
    static constexpr double kLength = 5'400'000; // ms
    double m_time = 0;
};

class InstantEngines : public EngineFactory {
public:
    std::unique_ptr<Engine> Create() override { return std::make_unique<InstantEngine>(); }
};

struct Folder {
    Folder()
    {
        path = (std::filesystem::temp_directory_path() / "zentaro-tick-XXXXXX").string();
        path = std::string(mkdtemp(path.data())) + "/";
    }
    ~Folder() { std::filesystem::remove_all(path); }
    std::string path;
};

void BM_PositionTickRules(benchmark::State& state)
{
    const Folder folder;
    InstantEngines engines;
    World world(folder.path, &engines);
    world.Load();
    world.player->Files().LoadThumb("a", "/a.avi", false, true);
    world.Settle();
    for (auto _ : state)
        world.player->OnPositionTick();
}
BENCHMARK(BM_PositionTickRules)->Unit(benchmark::kMicrosecond);

void BM_PositionTickWithItsWindow(benchmark::State& state)
{
    const Folder folder;
    InstantEngines engines;
    World world(folder.path, &engines);
    auto& player = world.Make();
    NoPreviews previews;
    frmMain window(player, previews.none, new VideoFrame({}, nullptr), QString::fromStdString(folder.path));
    player.Load("", { &window, &world.dialogs });
    player.Files().LoadThumb("a", "/a.avi", false, true);
    world.Settle();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        player.OnPositionTick();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(BM_PositionTickWithItsWindow)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace zentaro

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
