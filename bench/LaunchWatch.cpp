// Starts a player and measures from outside: launch-watch SECONDS COMMAND...
// Prints the time from the launch to the first frame on the screen (ms), and of the SECONDS after that the memory of
// the player and its children at their end (PSS, KiB) and the processor time they took (s per s). The video must show a
// band of pure magenta across its middle.
//   launch-watch settings FILE 0|1    writes settings of ours with which a launch fills the screen or not
#include "app/ConfigFile.h"
#include "bench/ProcessFigures.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

using namespace std::chrono_literals;
using namespace zentaro;
using Clock = std::chrono::steady_clock;

constexpr int kStripDistance = 16; // px, well below the height of the band in a small window
constexpr int kBandLength = 150;   // px
constexpr auto kPollPause = 2ms;
constexpr auto kPatience = 30s;

bool IsMagenta(std::uint32_t pixel)
{
    const auto red = pixel >> 16 & 0xFF;
    const auto green = pixel >> 8 & 0xFF;
    const auto blue = pixel & 0xFF;
    return red > 200 && green < 60 && blue > 200;
}

bool HasBand(const xcb_get_image_reply_t* image)
{
    const auto* const pixels = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image));
    int length = 0;
    for (int x = 0; x < xcb_get_image_data_length(image) / 4; ++x) {
        length = IsMagenta(pixels[x]) ? length + 1 : 0;
        if (length >= kBandLength)
            return true;
    }
    return false;
}

/// Looks at strips one pixel high, so that looking costs the players next to nothing.
class Screen {
public:
    Screen()
        : m_connection(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(m_connection) == 0)
            m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    }
    Screen(const Screen&) = delete;
    ~Screen() { xcb_disconnect(m_connection); }

    bool IsOpen() const { return m_screen != nullptr; }

    bool ShowsVideo() const
    {
        std::vector<xcb_get_image_cookie_t> cookies;
        for (int y = 0; y < m_screen->height_in_pixels; y += kStripDistance)
            cookies.push_back(xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_screen->root, 0,
                static_cast<std::int16_t>(y), m_screen->width_in_pixels, 1, ~0U));
        bool found = false;
        for (const auto& cookie : cookies) {
            const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> image(
                xcb_get_image_reply(m_connection, cookie, nullptr), &std::free);
            found = found || (image && HasBand(image.get()));
        }
        return found;
    }

private:
    xcb_connection_t* m_connection;
    xcb_screen_t* m_screen = nullptr;
};

std::multimap<pid_t, pid_t> ChildrenOfAll()
{
    std::multimap<pid_t, pid_t> children;
    for (const auto& entry : std::filesystem::directory_iterator("/proc"))
        if (const auto id = static_cast<pid_t>(std::strtol(entry.path().filename().c_str(), nullptr, 10)); id > 0)
            children.emplace(static_cast<pid_t>(NumberIn(entry.path() / "status", "PPid")), id);
    return children;
}

/// What `figure` says of a process and of all that descend from it.
template <typename Figure>
auto SumOf(Figure figure, pid_t id, const std::multimap<pid_t, pid_t>& children) -> decltype(figure(id))
{
    auto sum = figure(id);
    const auto [first, last] = children.equal_range(id);
    for (auto child = first; child != last; ++child)
        sum += SumOf(figure, child->second, children);
    return sum;
}

int WriteSettings(const char* path, bool fullScreen)
{
    auto settings = DefaultSettings("/", { 1920 * 15, 1080 * 15 });
    settings.LaunchFullScreen = fullScreen;
    std::ofstream(path, std::ios::binary) << FormatConfigurations(settings);
    return 0;
}

bool HasEnded(pid_t player)
{
    return waitpid(player, nullptr, WNOHANG) == player;
}

void End(pid_t player)
{
    // As a session would end it: settings are written, handles withdrawn.
    kill(player, SIGTERM);
    for (int tries = 0; tries < 500; ++tries) {
        if (HasEnded(player))
            return;
        std::this_thread::sleep_for(10ms);
    }
    kill(player, SIGKILL);
    waitpid(player, nullptr, 0);
}

std::optional<double> MillisecondsToFirstFrame(const Screen& screen, Clock::time_point start)
{
    while (!screen.ShowsVideo()) {
        if (Clock::now() - start > kPatience)
            return std::nullopt;
        std::this_thread::sleep_for(kPollPause);
    }
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 4 && argv[1] == std::string("settings"))
        return WriteSettings(argv[2], argv[3] == std::string("1"));
    const Screen screen;
    if (argc < 3 || !screen.IsOpen()) {
        std::fputs("launch-watch SECONDS COMMAND..., on a display\n", stderr);
        return 2;
    }
    if (screen.ShowsVideo()) {
        std::fputs("the display shows the video before the launch\n", stderr);
        return 2;
    }
    const auto start = Clock::now();
    const auto player = fork();
    if (player == 0) {
        execvp(argv[2], argv + 2);
        std::perror(argv[2]);
        _exit(127);
    }
    const auto launch = MillisecondsToFirstFrame(screen, start);
    const auto seconds = std::atoi(argv[1]);
    double load = -SumOf(ProcessorSeconds, player, ChildrenOfAll());
    if (launch)
        std::this_thread::sleep_for(std::chrono::seconds(seconds));
    load += SumOf(ProcessorSeconds, player, ChildrenOfAll());
    const auto memory = launch && screen.ShowsVideo() ? SumOf(MemoryOf, player, ChildrenOfAll()) : 0;
    End(player);
    if (memory == 0) {
        std::fprintf(stderr, "%s showed no video\n", argv[2]);
        return 1;
    }
    std::printf("%.0f %ld %.3f\n", *launch, memory, load / std::max(1, seconds));
    return 0;
}
