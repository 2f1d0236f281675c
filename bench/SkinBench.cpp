// What the skin costs: loading it, a full paint beside a plain copy of the same area, and a paint in a new size.
#include "shell/Skin.h"

#include <QGuiApplication>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace zentaro {
namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;

QString Folder()
{
    return QCoreApplication::applicationDirPath() + "/../bin/images/";
}

struct LoadedSkin : Skin {
    LoadedSkin()
    {
        if (const auto loaded = Load(Folder()); !loaded)
            qFatal("%s", loaded.error().text.c_str());
    }
};

void LoadSkin(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(LoadedSkin());
}
BENCHMARK(LoadSkin)->Unit(benchmark::kMillisecond)->UseRealTime();

void PlainBlit(benchmark::State& state)
{
    QImage screen(kWidth, kHeight, QImage::Format_RGB32);
    QImage picture(kWidth, kHeight, QImage::Format_RGB32);
    picture.fill(Qt::darkGray);
    for (auto _ : state) {
        QPainter painter(&screen);
        painter.drawImage(0, 0, picture);
    }
}
BENCHMARK(PlainBlit)->Unit(benchmark::kMicrosecond);

void FullPaint(benchmark::State& state)
{
    LoadedSkin skin;
    QImage screen(kWidth, kHeight, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&screen);
        skin.Paint(painter, kWidth, kHeight, {});
    }
}
BENCHMARK(FullPaint)->Unit(benchmark::kMicrosecond);

void PaintInANewSize(benchmark::State& state)
{
    LoadedSkin skin;
    QImage screen(kWidth, kHeight, QImage::Format_RGB32);
    int step = 0;
    for (auto _ : state) {
        step = (step + 1) % 200;
        QPainter painter(&screen);
        skin.Paint(painter, kWidth - step, kHeight - step, {});
    }
}
BENCHMARK(PaintInANewSize)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace zentaro

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
