// What counts while somebody watches, seen from outside on a virtual display of its own:
//   evening-watch gap NAME COMMAND... FIRST SECOND     ms between the last picture of one film and the next one's first
//   evening-watch unseen NAME COMMAND... FILM          % of one core while seen, covered, minimised; ms until it is
//   back evening-watch scrub PLAYER FILM                    pictures per second over the track while it is dragged:
//                                                      of a new film, of a known one
// The first film has a magenta band across its middle, the second a green one, above and below all pixels change from
// picture to picture. The film for "scrub" has in its middle one colour that turns with the time.
#include "app/ConfigFile.h"
#include "bench/FilmBand.h"
#include "bench/ProcessFigures.h"
#include "shell/WindowLayout.h"
#include "tests/desktop/Desktop.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <xcb/xcb.h>

namespace {

using namespace zentaro;
using namespace zentaro::trial;
using Clock = std::chrono::steady_clock;

constexpr int kScreenWidth = 1600;
constexpr int kScreenHeight = 1000;
constexpr auto kSettled = 3s;
constexpr auto kSpared = 6s; // until a film that nobody sees is spared
constexpr auto kWatched = 8s;
constexpr auto kDrag = 4s;

double Milliseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

void StoreSettings(const std::string& program)
{
    auto settings = DefaultSettings("/", { kScreenWidth * 15.0, kScreenHeight * 15.0 });
    settings.PlayMode = 1; // one after the other
    settings.RepeatMode = 0;
    settings.RememberLastSize = -1;
    settings.WindowWidth = 1200;
    settings.WindowHeight = 800;
    WriteWholeFile(std::filesystem::path(program).parent_path() / "Config.cfg", FormatConfigurations(settings));
}

/// A player with the films of its command line in it.
struct Watched {
    Watched(Desktop& screen, const std::string& name, std::vector<std::string> command, std::size_t films)
        : desktop(screen)
    {
        setenv("DISPLAY", desktop.Name().c_str(), 1);
        const auto program = command.front();
        std::vector<std::string> more;
        // Ours takes what lies behind the first one as part of its name.
        while (name == "zentaro" && films-- > 1) {
            more.push_back(command.back());
            command.pop_back();
        }
        if (name == "zentaro")
            StoreSettings(program);
        process = Process(command);
        if (!WaitUntil([&] { return !desktop.Numbers(desktop.Root(), "_NET_CLIENT_LIST").empty(); }))
            throw std::runtime_error(name + " shows no window");
        window = desktop.Numbers(desktop.Root(), "_NET_CLIENT_LIST").back();
        for (const auto& film : more)
            Process({ (std::filesystem::path(program).parent_path() / "zentaro-add").string(), film }).WaitForEnd();
    }
    ~Watched()
    {
        process.Signal(SIGTERM);
        if (!process.WaitForEnd(5s))
            process.Kill();
    }

    /// The middle of the band; false while there is none.
    bool FindBand()
    {
        int longest = 0;
        int first = kScreenHeight;
        int last = 0;
        for (int y = 0; y < kScreenHeight; y += 8) {
            const auto line = desktop.Grab({ 0, y, kScreenWidth, 1 });
            int start = 0;
            for (int x = 0; x <= line.width(); ++x) {
                if (x < line.width() && BandOf(line.pixel(x, 0)) != Band::None)
                    continue;
                if (x - start >= 300 && x - start >= longest - 16) {
                    longest = std::max(longest, x - start);
                    middle = start + (x - start) / 2;
                    first = std::min(first, y);
                    last = y;
                }
                start = x + 1;
            }
        }
        band = (first + last) / 2;
        outside = first - (last - first) / 2;
        return longest > 0;
    }
    Band Seen() const { return BandOf(desktop.Grab({ middle, band, 1, 1 }).pixel(0, 0)); }
    QImage Outside() const { return desktop.Grab({ middle - 40, outside, 80, 1 }); }

    Desktop& desktop;
    Process process;
    Window window = 0;
    int middle = 0;
    int band = 0;
    int outside = 0;
};

void MeasureGap(Watched& watched)
{
    if (!WaitUntil([&] { return watched.FindBand(); }))
        throw std::runtime_error("no film is seen");
    auto picture = watched.Outside();
    auto last = Clock::now();
    const auto end = last + 60s;
    while (watched.Seen() != Band::Green && Clock::now() < end) {
        // A window that is put up for the second film is no picture of the first.
        if (auto now = watched.Outside(); watched.Seen() == Band::Magenta && now != picture) {
            picture = std::move(now);
            last = Clock::now();
        }
        std::this_thread::sleep_for(1ms);
    }
    std::printf("%.0f\n", Milliseconds(Clock::now() - last));
}

double Share(const Watched& watched)
{
    const auto before = ProcessorSeconds(watched.process.Id());
    std::this_thread::sleep_for(kWatched);
    return (ProcessorSeconds(watched.process.Id()) - before) / std::chrono::duration<double>(kWatched).count() * 100;
}

/// A window over all of the screen.
class Cover {
public:
    explicit Cover(const std::string& display)
        : m_connection(xcb_connect(display.c_str(), nullptr))
    {
        const auto* const screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        const auto window = xcb_generate_id(m_connection);
        const std::uint32_t values[] = { screen->black_pixel, 1 };
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, kScreenWidth, kScreenHeight,
            0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT,
            values);
        xcb_map_window(m_connection, window);
        xcb_flush(m_connection);
    }
    Cover(const Cover&) = delete;
    ~Cover() { xcb_disconnect(m_connection); }

private:
    xcb_connection_t* m_connection;
};

void MeasureUnseen(Watched& watched)
{
    auto& desktop = watched.desktop;
    const auto id = std::to_string(watched.window);
    std::this_thread::sleep_for(kSettled);
    const double seen = Share(watched);
    double covered = 0;
    {
        const Cover cover(desktop.Name());
        std::this_thread::sleep_for(kSpared);
        covered = Share(watched);
    }
    desktop.Activate(watched.window);
    std::this_thread::sleep_for(kSettled);
    Process(Words("xdotool windowminimize " + id)).WaitForEnd();
    std::this_thread::sleep_for(kSpared);
    const double minimised = Share(watched);
    desktop.Activate(watched.window);
    const auto start = Clock::now();
    const auto before = watched.FindBand() ? watched.Outside() : QImage();
    const bool isBack = WaitUntil([&] { return watched.FindBand() && watched.Outside() != before; });
    std::printf("%.1f %.1f %.1f %.0f\n", seen, covered, minimised, isBack ? Milliseconds(Clock::now() - start) : -1.0);
}

/// The colour where the picture over the track is, with the pointer at x.
QRgb ColourOver(const Desktop& desktop, int x, int y)
{
    const auto mean = MeanOf(desktop.Grab({ x - 4, y - 4, 8, 8 }));
    return qRgb(mean.red() & 0xF0, mean.green() & 0xF0, mean.blue() & 0xF0);
}

double DragOver(Watched& watched, bool holds)
{
    auto& desktop = watched.desktop;
    const auto place = desktop.Place(watched.window);
    const auto track = WindowLayout(place.width, place.height).SeekTrack();
    const int y = place.top + track.top + track.height / 2;
    const auto at = [&](double share) { return place.left + track.left + static_cast<int>(track.width * share); };
    desktop.MoveTo(at(0.2), y);
    if (holds)
        desktop.Hold(at(0.2), y);
    std::map<QRgb, int> seen;
    int changes = 0;
    QRgb last = 0;
    const auto start = Clock::now();
    while (Clock::now() - start < kDrag) {
        const double share = 0.2 + 0.6 * (Milliseconds(Clock::now() - start) / Milliseconds(kDrag));
        desktop.MoveTo(at(share), y);
        std::this_thread::sleep_for(15ms);
        const auto colour = ColourOver(desktop, at(share), y - 80);
        changes += colour != last;
        last = colour;
        ++seen[colour];
    }
    if (holds)
        desktop.Release();
    return changes / std::chrono::duration<double>(kDrag).count();
}

void MeasureScrub(Watched& watched)
{
    auto& desktop = watched.desktop;
    std::this_thread::sleep_for(kSettled);
    desktop.Press("space");
    const double atOnce = DragOver(watched, true);
    std::this_thread::sleep_for(20s); // the pointer rests, and the rest of the film is made
    const double known = DragOver(watched, true);
    std::printf("%.1f %.1f\n", atOnce, known);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string kind = argc > 3 ? argv[1] : "";
    try {
        Desktop desktop(kScreenWidth, kScreenHeight);
        if (kind == "scrub") {
            Watched watched(desktop, "zentaro", { argv + 2, argv + argc }, 1);
            MeasureScrub(watched);
        } else if (kind == "gap") {
            Watched watched(desktop, argv[2], { argv + 3, argv + argc }, 2);
            MeasureGap(watched);
        } else if (kind == "unseen") {
            Watched watched(desktop, argv[2], { argv + 3, argv + argc }, 1);
            MeasureUnseen(watched);
        } else {
            std::fputs("evening-watch gap|unseen NAME COMMAND... FILM..., or scrub PLAYER FILM\n", stderr);
            return 2;
        }
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
