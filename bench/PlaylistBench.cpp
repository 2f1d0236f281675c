// What the playlist costs: adding, painting, removing, and memory. The list is filled with ready thumbnails.
#include "playlist/FancyList.h"
#include "playlist/ListArranging.h"
#include "playlist/ListFind.h"
#include "playlist/LoadThumb.h"
#include "playlist/Playlist.h"

#include <QApplication>
#include <QImage>

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <random>

namespace zentaro {
namespace {

constexpr int kEntries = 10'000;
// A report as long as that of a film with two sound tracks.
constexpr int kReportLength = 600;

struct SilentHost : AddHost {
    void ShowNotice(const Notice&, std::function<void()>) override { }
    void PlayItem(int, bool) override { }
    std::int32_t PlayMode() const override { return playMode; }
    void EntryAdded() override { }
    std::int32_t playMode = kPlayContinuous;
};

RandomSource Random()
{
    return [engine = std::mt19937(1)]() mutable { return std::uniform_real_distribution<double>()(engine); };
}

Picture SmallPicture(int number)
{
    return { 64, 36, std::vector<std::uint32_t>(64 * 36, 0xFF000000U + static_cast<std::uint32_t>(number) * 2654435U) };
}

std::vector<Picture> SmallPictures()
{
    std::vector<Picture> pictures;
    for (int i = 0; i < kEntries; ++i)
        pictures.push_back(SmallPicture(i));
    return pictures;
}

void AddAll(Playlist& playlist, SilentHost& host, const std::vector<Picture>& pictures)
{
    InspectionState inspected;
    Inspection inspection;
    inspection.ok = true;
    inspection.mediaInfo.assign(kReportLength, 'x');
    inspection.facts = { 4711, 1280, 720, 12'345'678 };
    for (int i = 0; i < static_cast<int>(pictures.size()); ++i) {
        const auto name = "A film of some length, part " + std::to_string(i) + ".mkv";
        inspection.thumbnail = pictures[static_cast<std::size_t>(i)];
        LoadThumb(
            playlist, inspected, host, { name, "/media/films/a longer folder name/" + name, false, false }, inspection)
            .Finish();
    }
}

/// A list as tall as a 1080p screen with all entries.
struct FullList {
    FullList()
    {
        list.SetImageWidth(64);
        list.SetImageHeight(64);
        list.SetItemHeight(80);
        list.resize(400, 1080);
        list.show();
        AddAll(playlist, host, SmallPictures());
    }
    Playlist playlist{ Random() };
    SilentHost host;
    FancyList list{ playlist.List() };
};

void AddTenThousand(benchmark::State& state)
{
    const auto pictures = SmallPictures();
    for (auto _ : state) {
        Playlist playlist(Random());
        FancyList list(playlist.List());
        SilentHost host;
        host.playMode = static_cast<std::int32_t>(state.range(0));
        AddAll(playlist, host, pictures);
        benchmark::DoNotOptimize(playlist.Order().At(0));
    }
}
BENCHMARK(AddTenThousand)->Arg(kPlayContinuous)->Arg(kPlayShuffle)->Unit(benchmark::kMillisecond);

void RepaintVisibleRows(benchmark::State& state)
{
    FullList full;
    full.list.Scroll(-16 * 4'040);
    QImage image(400, 1080, QImage::Format_RGB32);
    for (auto _ : state)
        full.list.render(&image);
}
BENCHMARK(RepaintVisibleRows)->Unit(benchmark::kMicrosecond);

void RemoveFromTheMiddle(benchmark::State& state)
{
    FullList full;
    for (auto _ : state) {
        full.playlist.List().SetSelectedItem(full.playlist.Count() / 2);
        full.playlist.RemoveSelected();
        if (full.playlist.Count() < kEntries / 2) {
            state.PauseTiming();
            full.playlist.RemoveAll();
            AddAll(full.playlist, full.host, SmallPictures());
            state.ResumeTiming();
        }
    }
}
BENCHMARK(RemoveFromTheMiddle)->Unit(benchmark::kMicrosecond);

void FindAsOneTypes(benchmark::State& state)
{
    FullList full;
    ListFind find(full.playlist);
    for (auto _ : state) {
        for (const auto* const words : { "9", "99", "99 e", "" })
            full.list.SetFind(words, find.Rows(words));
    }
}
BENCHMARK(FindAsOneTypes)->Unit(benchmark::kMillisecond);

void SortAndUndo(benchmark::State& state)
{
    FullList full;
    for (auto _ : state) {
        full.playlist.Arrange(ListEdit::Sort, SortedRows(full.playlist, ListSort::Name, '/'), kPlayContinuous);
        full.playlist.Undo(kPlayContinuous);
    }
}
BENCHMARK(SortAndUndo)->Unit(benchmark::kMillisecond);

void MemoryPerEntry(benchmark::State& state)
{
    const auto pictures = SmallPictures();
    double bytes = 0;
    for (auto _ : state) {
        Playlist playlist(Random());
        SilentHost host;
        const auto before = mallinfo2();
        AddAll(playlist, host, pictures);
        const auto after = mallinfo2();
        bytes = static_cast<double>(after.uordblks + after.hblkhd - before.uordblks - before.hblkhd) / kEntries;
    }
    state.counters["bytes_per_entry"] = bytes;
}
BENCHMARK(MemoryPerEntry)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zentaro

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
