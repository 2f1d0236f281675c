// How a player takes a folder of files that were all seen before: known-watch PLAYER ADD FOLDER COUNT THUMBNAIL
// Makes the files and what is known of them, starts PLAYER on a display of its own and lets ADD give it the folder.
// Says how long the list took (until the player is at rest), how long its window needed for an answer meanwhile, and
// what memory (PSS) the entries take.
#include "bench/ProcessFigures.h"
#include "bench/WindowAsker.h"
#include "platform/Files.h"
#include "playlist/KnownFiles.h"
#include "shell/WindowLayout.h"
#include "tests/desktop/Desktop.h"
#include "tests/desktop/Wait.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

using namespace zentaro;
using namespace zentaro::trial;
using Clock = std::chrono::steady_clock;
namespace fs = std::filesystem;

constexpr auto kRest = 400ms;   // without any work: it is done
constexpr double kTick = 0.015; // s; more than one tick of the processor

std::string TextOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

void MakeFiles(const std::string& folder, int count, const std::string& thumbnail)
{
    KnownFiles known([] { return platform::CacheStore::Open(platform::CacheFolder() + "/seen.db", 512 << 20); });
    Inspection film;
    film.ok = true;
    film.mediaInfo.assign(600, 'x'); // as long as that of a film with two sound tracks
    film.pictureFile = TextOf(thumbnail);
    film.facts = { 4711, 1280, 720, 12'345'678 };
    fs::create_directory(folder);
    for (int i = 0; i < count; ++i) {
        const auto path = folder + "/A film of some length, part " + std::to_string(i) + ".mkv";
        std::ofstream(path) << i;
        if (!known.Remember(path, *StampOf(path), film))
            throw std::runtime_error("the store takes nothing");
    }
}

/// When it did something last.
Clock::time_point AtRest(pid_t id, Clock::duration limit)
{
    auto work = ProcessorSeconds(id);
    auto last = Clock::now();
    const auto end = last + limit;
    // A tick now and then is no work.
    while (Clock::now() - last < kRest && Clock::now() < end) {
        std::this_thread::sleep_for(20ms);
        if (const auto now = ProcessorSeconds(id); now > work + kTick) {
            work = now;
            last = Clock::now();
        }
    }
    return last;
}

/// The rows in sight have their thumbnails, which are colourful; what stands for one is not.
bool ShowsThumbnails(const Desktop& desktop, const Rect& content)
{
    const auto column = desktop.Grab({ content.left + 8, content.top, 64, content.height - 30 });
    int rows = 0;
    for (int y = 0; y < column.height(); ++y) {
        int colourful = 0;
        for (int x = 0; x < column.width(); ++x) {
            const auto pixel = column.pixel(x, y);
            const auto [least, most] = std::minmax({ qRed(pixel), qGreen(pixel), qBlue(pixel) });
            colourful += most - least > 100;
        }
        rows += colourful > column.width() / 2;
    }
    // About 10 lines of each thumbnail are full of colour.
    return rows >= 3 * 8;
}

/// Jumps from one end of the list to the other and says how long rows were without their thumbnails at most. The key
/// takes 30 ms by itself.
void MeasureJumps(Desktop& desktop, ::Window window)
{
    const auto place = desktop.Place(window);
    auto content = WindowLayout(place.width, place.height).Content();
    content.left += place.left;
    content.top += place.top;
    desktop.Click(content.left + 100, content.top + 40);
    std::this_thread::sleep_for(1s);
    double longest = 0;
    for (const auto* const key : { "End", "Home", "End", "Home", "Next Next Next", "End" }) {
        desktop.Press(key);
        const auto start = Clock::now();
        auto whole = start;
        while (Clock::now() - start < 500ms) {
            std::this_thread::sleep_for(3ms);
            if (ShowsThumbnails(desktop, content))
                whole = Clock::now();
            longest = std::max(longest, std::chrono::duration<double, std::milli>(Clock::now() - whole).count());
        }
    }
    std::printf("after a jump through the list rows were without their thumbnails for %.0f ms at most\n", longest);
}

void Measure(const std::string& player, const std::string& add, const std::string& folder)
{
    Desktop desktop(1280, 800, Desktop::WindowManager::None);
    WindowAsker asker(desktop.Name());
    Process process({ "DISPLAY=" + desktop.Name(), player });
    std::vector<::Window> windows;
    if (!WaitUntil([&] { return !(windows = desktop.WindowsOf(process.Id())).empty(); }))
        throw std::runtime_error("no window came");
    std::this_thread::sleep_for(8s);
    const auto empty = MemoryOf(process.Id());
    asker.Ask(windows.front());
    std::this_thread::sleep_for(1s);
    asker.Take();
    const auto start = Clock::now();
    Process adding({ "DISPLAY=" + desktop.Name(), add, folder });
    adding.WaitForEnd();
    const std::chrono::duration<double> listed = AtRest(process.Id(), 120s) - start;
    auto times = asker.Take();
    std::sort(times.begin(), times.end());
    std::printf(
        "listed in %.2f s; the window answered within %.0f ms, middle %.1f ms; %.1f MiB more than empty (%.1f)\n",
        listed.count(), times.empty() ? -1 : times.back(), times.empty() ? -1 : times[times.size() / 2],
        static_cast<double>(MemoryOf(process.Id()) - empty) / 1024, static_cast<double>(empty) / 1024);
    MeasureJumps(desktop, windows.front());
    process.Signal(SIGTERM);
    if (!process.WaitForEnd(10s))
        process.Kill();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 6) {
        std::fputs("known-watch PLAYER ADD FOLDER COUNT THUMBNAIL\n", stderr);
        return 2;
    }
    try {
        XInitThreads();
        MakeFiles(argv[3], std::atoi(argv[4]), argv[5]);
        Measure(argv[1], argv[2], argv[3]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
