// Asks the window, like a window manager that wants to know whether it hangs, every 20 ms while it has much to do:
//   answer-watch PRELOAD PLAYER ADD FOLDER
// PLAYER is started on a display of its own, with PRELOAD before its libraries; ADD gives it all files of FOLDER.
// A line for each thing that is done: the longest and the middle time until an answer, in ms, and how many there were.
#include "bench/WindowAsker.h"
#include "tests/desktop/Desktop.h"
#include "tests/desktop/Wait.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace {

using namespace zentaro;
using namespace zentaro::trial;
namespace fs = std::filesystem;

void Tell(const char* what, WindowAsker& manager, std::chrono::seconds time)
{
    std::this_thread::sleep_for(time);
    auto times = manager.Take();
    if (times.empty())
        throw std::runtime_error(std::string("no answer: ") + what);
    std::sort(times.begin(), times.end());
    const auto late = std::count_if(times.begin(), times.end(), [](double each) { return each > 100; });
    std::printf("%-12s longest %6.1f ms, middle %5.1f ms, %zu answers, %td over 100 ms\n", what, times.back(),
        times[times.size() / 2], times.size(), late);
    std::fflush(stdout);
}

std::vector<std::string> FilesIn(const std::string& folder)
{
    std::vector<std::string> files;
    for (const auto& entry : fs::directory_iterator(folder))
        files.push_back(entry.path().string());
    std::sort(files.begin(), files.end());
    return files;
}

void Measure(const std::string& preload, const std::string& player, const std::string& add, const std::string& folder)
{
    Desktop desktop(1280, 800, Desktop::WindowManager::None);
    WindowAsker manager(desktop.Name());
    Process process({ "DISPLAY=" + desktop.Name(), "LD_PRELOAD=" + preload, player });
    std::vector<::Window> windows;
    if (!WaitUntil([&] { return !(windows = desktop.WindowsOf(process.Id())).empty(); }))
        throw std::runtime_error("no window came");
    const auto window = windows.front();
    std::this_thread::sleep_for(10s);
    manager.Ask(window);
    Tell("idle", manager, 5s);
    auto words = FilesIn(folder);
    words.insert(words.begin(), { "DISPLAY=" + desktop.Name(), add });
    Process adding(words);
    Tell("adding", manager, 15s);
    const auto press = [&](const char* what, const char* keys, std::chrono::seconds time) {
        desktop.Press(keys);
        Tell(what, manager, time);
    };
    press("play", "space", 8s);
    for (int i = 0; i < 3; ++i)
        press("next", "Next", 6s);
    press("fullscreen", "f", 3s);
    press("window", "f", 3s);
    press("snapshot", "s", 3s);
    press("pause", "ctrl+p", 3s);
    press("stop", "ctrl+s", 3s);
    press("options", "alt+t", 2s);
    press("options", "Return", 4s);
    press("closed", "Escape", 2s);
    press("help", "alt+h", 2s);
    press("menu away", "Escape", 2s);
    process.Signal(SIGTERM);
    if (!process.WaitForEnd(10s))
        process.Kill();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::fputs("answer-watch PRELOAD PLAYER ADD FOLDER\n", stderr);
        return 2;
    }
    try {
        XInitThreads();
        Measure(argv[1], argv[2], argv[3], argv[4]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
