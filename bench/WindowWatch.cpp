// Measures the window from outside, on a virtual display of its own:
//   window-watch up TIMES PLAYER             ms from the launch to a painted window, one per line
//   window-watch resize SECONDS PLAYER CLIP  pictures that the engine dropped in a still window and in one that is
//                                            resized all the time, after so many seconds each
// What stands in ZENTARO_BENCH_SESSION is started on the display before, and says a word when it is there.
#include "tests/desktop/Desktop.h"
#include "tests/desktop/Wait.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <unistd.h>

namespace {

using namespace zentaro;
using namespace zentaro::trial;
using Clock = std::chrono::steady_clock;
namespace fs = std::filesystem;

constexpr int kPainted = 20; // of 255: brighter than an unpainted window
constexpr auto kSettled = 2s;

class Watched {
public:
    Watched(Desktop& desktop, const std::vector<std::string>& command)
        : m_desktop(desktop)
    {
        std::vector<std::string> words = { "DISPLAY=" + desktop.Name(), "TMPDIR=" + m_folder };
        words.insert(words.end(), command.begin(), command.end());
        m_process = Process(words);
    }
    ~Watched()
    {
        m_process.Signal(SIGTERM);
        if (!m_process.WaitForEnd(5s))
            m_process.Kill();
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }

    void WaitForWindow()
    {
        const auto end = Clock::now() + kPatience;
        while (!IsPainted()) {
            if (Clock::now() > end)
                throw std::runtime_error("no window came");
            std::this_thread::sleep_for(1ms);
        }
    }
    Rect Place() const { return m_desktop.Place(m_window); }
    /// The engine warns of each picture that it loses.
    int Dropped() const
    {
        const std::string warning = "picture is too late to be displayed";
        int count = 0;
        for (const auto& entry : fs::recursive_directory_iterator(m_folder)) {
            if (entry.path().filename() != "engine.log")
                continue;
            const auto log = ReadWholeFile(entry.path().string());
            for (auto at = log.find(warning); at != std::string::npos; at = log.find(warning, at + 1))
                ++count;
        }
        return count;
    }

private:
    static std::string MakeFolder()
    {
        auto path = (fs::temp_directory_path() / "zentaro-window-XXXXXX").string();
        if (mkdtemp(path.data()) == nullptr)
            throw std::runtime_error("no folder");
        return path;
    }
    bool IsPainted()
    {
        const auto windows = m_desktop.WindowsOf(m_process.Id());
        if (windows.empty())
            return false;
        m_window = windows.back();
        const auto place = Place();
        return MeanOf(m_desktop.Grab({ place.left, place.top, place.width, 31 })).value() > kPainted;
    }

    Desktop& m_desktop;
    std::string m_folder = MakeFolder();
    Process m_process;
    Window m_window = 0;
};

void MeasureStarts(Desktop& desktop, int times, const std::vector<std::string>& command)
{
    for (int i = 0; i < times; ++i) {
        const auto start = Clock::now();
        Watched watched(desktop, command);
        watched.WaitForWindow();
        std::printf("%.0f\n", std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
}

/// The lower right corner follows the pointer to and fro.
void ResizeFor(Desktop& desktop, Watched& watched, std::chrono::seconds time)
{
    constexpr int kWay = 300; // px
    const auto place = watched.Place();
    const int x = place.Right() - 3;
    const int y = place.Bottom() - 3;
    desktop.Hold(x, y);
    const auto end = Clock::now() + time;
    for (int step = 0; Clock::now() < end; ++step) {
        const int way = std::abs(step * 4 % (2 * kWay) - kWay);
        desktop.MoveTo(x + kWay - way, y + (kWay - way) / 2);
        std::this_thread::sleep_for(16ms);
    }
    desktop.Release();
}

void MeasureResizing(Desktop& desktop, std::chrono::seconds time, const std::vector<std::string>& command)
{
    Watched watched(desktop, command);
    watched.WaitForWindow();
    std::this_thread::sleep_for(kSettled);
    const auto place = watched.Place();
    const int before = watched.Dropped();
    std::this_thread::sleep_for(time);
    const int still = watched.Dropped();
    ResizeFor(desktop, watched, time);
    std::printf("%d %d\n", still - before, watched.Dropped() - still);
    if (watched.Place() == place)
        throw std::runtime_error("the window was not resized");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 4) {
        std::fputs("window-watch up|resize NUMBER PLAYER [CLIP]\n", stderr);
        return 2;
    }
    try {
        Desktop desktop(1600, 1000);
        Process session;
        if (const char* const command = std::getenv("ZENTARO_BENCH_SESSION")) {
            session = Process(Words("DISPLAY=" + desktop.Name() + " " + command));
            WaitUntil([&] { return !session.Output().empty(); }, 6 * kPatience);
        }
        const int number = std::atoi(argv[2]);
        const std::vector<std::string> command(argv + 3, argv + argc);
        if (argv[1] == std::string("up"))
            MeasureStarts(desktop, number, command);
        else
            MeasureResizing(desktop, std::chrono::seconds(number), command);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
