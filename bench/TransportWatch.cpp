// Measures playing from outside, on a virtual display of its own:
//   transport-watch seek SEEKS zentaro|mpv COMMAND... CLIP    ms from the user's order to the new picture, one per line
//   transport-watch cpu SECONDS NAME COMMAND... CLIP          processor time in % of one core
// The clip shows a band across its middle: green in the first half of its 20 s, magenta in the second; for "cpu" always
// magenta. The video is 1280 x 720 in all programs; zentaro gets its window so.
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
#include <optional>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

using namespace zentaro;
using namespace zentaro::trial;
using Clock = std::chrono::steady_clock;

constexpr int kVideoWidth = 1280;
constexpr int kVideoHeight = 720;
constexpr int kScreenWidth = 1600;
constexpr int kScreenHeight = 1000;
constexpr double kClipSeconds = 20;
constexpr auto kSettled = 2s;

/// What runs from one side of `row` to the other, but for its ends.
Band BandIn(const QImage& row)
{
    if (row.isNull())
        return Band::None;
    const auto band = BandOf(row.pixel(row.width() / 2, 0));
    int share = 0;
    for (int x = 0; x < row.width(); ++x)
        share += BandOf(row.pixel(x, 0)) == band;
    return share * 10 >= row.width() * 9 ? band : Band::None;
}

class Watched {
public:
    Watched(Desktop& desktop, const std::string& name, const std::vector<std::string>& command)
        : m_desktop(desktop)
        , m_name(name)
    {
        if (name == "zentaro")
            StoreSettings(command.front());
        setenv("DISPLAY", desktop.Name().c_str(), 1);
        process = Process(command);
        WaitUntil([&] { return (m_window = FindWindow()) != 0; });
        if (name == "zentaro")
            HideList();
        const auto isShown = [&] {
            FindRow();
            return m_row.width > kVideoWidth / 2;
        };
        if (!WaitUntil(isShown))
            throw std::runtime_error(name + " shows no band");
    }
    ~Watched()
    {
        process.Signal(SIGTERM);
        if (!process.WaitForEnd(5s))
            process.Kill();
    }

    Band Seen() const { return BandIn(m_desktop.Grab(m_row)); }
    void FindRow()
    {
        m_row = {};
        // The band has the width of the video; the longest one is it.
        for (int y = 0; y < kScreenHeight; y += 8) {
            const auto line = m_desktop.Grab({ 0, y, kScreenWidth, 1 });
            int start = 0;
            for (int x = 0; x <= line.width(); ++x) {
                if (x < line.width() && BandOf(line.pixel(x, 0)) != Band::None)
                    continue;
                if (x - start > m_row.width)
                    m_row = { start, y, x - start, 1 };
                start = x + 1;
            }
        }
    }
    const Rect& Row() const { return m_row; }

    /// Orders the jump; what comes before the order is not counted.
    Clock::time_point Seek(double share)
    {
        if (m_name == "mpv")
            return Tell(R"({"command":["seek",)" + std::to_string(share * kClipSeconds) + R"(,"absolute"]})" + "\n");
        const auto place = m_desktop.Place(m_window);
        const auto track = WindowLayout(place.width, place.height).SeekTrack();
        const int x = place.left + track.left + static_cast<int>(track.width * share);
        m_desktop.MoveTo(x, place.top + track.top + track.height / 2);
        std::this_thread::sleep_for(50ms);
        const auto start = Clock::now();
        m_desktop.Click(x, place.top + track.top + track.height / 2);
        return start;
    }

    Process process;

private:
    static void StoreSettings(const std::string& program)
    {
        auto settings = DefaultSettings("/", { kScreenWidth * 15.0, kScreenHeight * 15.0 });
        const auto content = WindowLayout(kScreenWidth, kScreenHeight).Content();
        settings.RememberLastSize = -1;
        settings.WindowWidth = kVideoWidth + kScreenWidth - content.width;
        settings.WindowHeight = kVideoHeight + kScreenHeight - content.height;
        WriteWholeFile(std::filesystem::path(program).parent_path() / "Config.cfg", FormatConfigurations(settings));
    }
    Window FindWindow() const
    {
        const auto windows = m_desktop.Numbers(m_desktop.Root(), "_NET_CLIENT_LIST");
        return windows.empty() ? 0 : windows.back();
    }
    void HideList()
    {
        std::this_thread::sleep_for(kSettled);
        const auto place = m_desktop.Place(m_window);
        const auto button = WindowLayout(place.width, place.height).ButtonRect(Button::PlayList);
        m_desktop.Click(place.left + button.left + button.width / 2, place.top + button.top + button.height / 2);
    }
    Clock::time_point Tell(const std::string& text)
    {
        sockaddr_un address{ .sun_family = AF_UNIX, .sun_path = "mpv.socket" };
        const int end = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (connect(end, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
            throw std::runtime_error("mpv does not listen");
        const auto start = Clock::now();
        if (write(end, text.data(), text.size()) < 0)
            throw std::runtime_error("mpv does not read");
        // Closing at once would take the order back.
        m_ends.push_back(end);
        return start;
    }

    Desktop& m_desktop;
    std::string m_name;
    Window m_window = 0;
    Rect m_row;
    std::vector<int> m_ends;
};

void MeasureSeeks(Watched& watched, int seeks)
{
    for (int i = 0; i < seeks; ++i) {
        const bool toSecondHalf = i % 2 == 0;
        const auto wanted = toSecondHalf ? Band::Magenta : Band::Green;
        const auto start = watched.Seek(toSecondHalf ? 0.7 : 0.2);
        while (watched.Seen() != wanted) {
            if (Clock::now() - start > kPatience)
                throw std::runtime_error("a seek brought no picture");
            std::this_thread::sleep_for(1ms);
        }
        std::printf("%.1f\n", std::chrono::duration<double, std::milli>(Clock::now() - start).count());
        std::this_thread::sleep_for(400ms);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 6) {
        std::fputs("transport-watch seek|cpu NUMBER NAME COMMAND... CLIP\n", stderr);
        return 2;
    }
    try {
        const int number = std::atoi(argv[2]);
        Desktop desktop(kScreenWidth, kScreenHeight);
        Watched watched(desktop, argv[3], { argv + 4, argv + argc });
        std::this_thread::sleep_for(kSettled);
        watched.FindRow();
        std::fprintf(stderr, "%s: the video is %d px wide\n", argv[3], watched.Row().width);
        if (argv[1] == std::string("seek")) {
            MeasureSeeks(watched, number);
        } else {
            const auto before = ProcessorSeconds(watched.process.Id());
            std::this_thread::sleep_for(std::chrono::seconds(number));
            std::printf("%.1f\n", (ProcessorSeconds(watched.process.Id()) - before) / number * 100);
        }
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
