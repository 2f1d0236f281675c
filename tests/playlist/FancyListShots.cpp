// Draws the list as it looks in use into PNG files of a folder: 0, 3 and 500 entries at three sizes, and an enlarged
// one.
#include "tests/playlist/FancyListWorld.h"

#include <QDir>
#include <QImage>
#include <QPainter>

#include <cstdio>

namespace zentaro {
namespace {

void Fill(FancyListState& state, int count)
{
    const char* const names[] = { "Morning over the harbour.mkv",
        "Tom & Anna - The long way home, part 2 of 3 (restored).mp4", "03 Nocturne.mp3", "\u6D77\u8FBA\u306E\u665A.mkv",
        "holiday_2019_clip_0042.mov", "\U0001F3AC Trailer.mp4" };
    for (int i = 0; i < count; ++i) {
        const int height = i % 3 == 1 ? 400 : 180;
        MediaFacts facts;
        facts.duration = 61 + i * 397 % 7000;
        facts.width = i % 6 == 2 ? 0 : 1280;
        facts.height = 720;
        facts.fileSize = 3'400'000 + i * 7'654'321LL;
        state.AddItem(names[i % 6], Landscape(i, 320, height), DetailText(facts));
    }
    state.SetSelectedItem(1);
    state.SetPlayingItem(0);
}

bool Save(int count, const QSize& size, double ratio, const QString& folder, bool adding)
{
    FancyListState state;
    FancyList list(PrepareList(state));
    list.setPalette(GraphitePalette());
    list.resize(size);
    list.show();
    Fill(state, count);
    if (adding)
        list.ShowAddProgress({ 120, 340 });
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    list.render(&image);
    const auto name = QString("list-%1-%2x%3-%4%5.png")
                          .arg(count)
                          .arg(size.width())
                          .arg(size.height())
                          .arg(ratio)
                          .arg(adding ? "-adding" : "");
    return image.save(QDir(folder).filePath(name));
}

} // namespace
} // namespace zentaro

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s folder\n", argv[0]);
        return 2;
    }
    bool ok = true;
    for (const int count : { 0, 3, 500 }) {
        for (const QSize size : { QSize(190, 320), QSize(300, 500), QSize(520, 800) })
            ok = zentaro::Save(count, size, 1.0, argv[1], count == 500) && ok;
    }
    for (const double ratio : { 1.25, 2.0 })
        ok = zentaro::Save(500, { 300, 300 }, ratio, argv[1], ratio < 2) && ok;
    return ok ? 0 : 1;
}
