// Adds files to the playlist of the running player, or of one that it starts: zentaro-add FILE...
#include "app/SingleInstance.h"
#include "base/Paths.h"
#include "platform/ChildProcess.h"
#include "platform/FileSelections.h"
#include "platform/Files.h"
#include "platform/HandOver.h"
#include "platform/StringStore.h"
#include "playlist/DroppedFiles.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

using namespace zentaro;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kStartTime = 30s; // for a player to come up
constexpr auto kLook = 50ms;
constexpr std::int32_t kShown = 1;

int Fail(const std::string& text)
{
    std::fprintf(stderr, "%s\n", text.c_str());
    return 1;
}

std::vector<std::string> PathsOf(int count, char** arguments)
{
    std::vector<std::string> paths;
    for (int i = 1; i < count; ++i)
        paths.push_back(WholePath(arguments[i]));
    return paths;
}

/// Players may come and go meanwhile.
std::string RunningPlayer()
{
    const auto handle =
        platform::StringStore::Open()->Read(platform::StringStore::Root::CurrentUser, HandOverKey(), kAddHandle, "");
    return platform::IsHandOverAlive(handle) ? handle : std::string();
}

/// Null when nothing was started. It lives on without us.
std::unique_ptr<platform::StartedProcess> StartPlayer(const std::vector<std::string>& arguments)
{
    const auto folder = platform::ExecutableFolder();
    return platform::ShellStart({ folder + platform::PathSeparator() + "zentaro", arguments, folder, kShown, true });
}

/// The handle of a player other than `before`; empty when none comes up. `mayEnd`: the process that was started may
/// find the other one and leave it what it was given.
std::string NewPlayer(const std::string& before, platform::StartedProcess* started, bool mayEnd)
{
    const auto end = Clock::now() + kStartTime;
    while (started != nullptr && Clock::now() < end) {
        if (const auto handle = RunningPlayer(); !handle.empty() && handle != before)
            return handle;
        if (started->HasFailed())
            break;
        if (mayEnd && started->HasEnded(0ms))
            return RunningPlayer();
        std::this_thread::sleep_for(kLook);
    }
    return {};
}

/// `handle`: the player to begin with, if any.
int Add(const std::vector<std::string>& paths, std::string handle)
{
    std::string silent;
    for (std::size_t next = 0; next < paths.size();) {
        if (handle.empty())
            handle = NewPlayer(silent, StartPlayer({}).get(), false);
        if (handle.empty())
            return Fail("No player took " + paths[next] + ".");
        if (platform::SendHandOverText(handle, paths[next]) != platform::HandOverOutcome::Silent) {
            ++next;
            continue;
        }
        if (!silent.empty())
            return Fail("No player took " + paths[next] + ".");
        Fail("The player that runs already does not answer.");
        silent = std::exchange(handle, {});
    }
    return 0;
}

/// The first file goes the way of a double click, whatever is decided there; the others follow it.
int PlayAndAdd(std::vector<std::string> paths)
{
    const auto before = RunningPlayer();
    const auto started = StartPlayer({ paths.front() });
    paths.erase(paths.begin());
    return Add(paths, paths.empty() ? std::string() : NewPlayer(before, started.get(), true));
}

} // namespace

int main(int count, char** arguments)
{
    auto paths = PathsOf(count, arguments);
    bool plays = false;
    if (count == 2 && std::string(arguments[1]) == platform::kSelectionComes) {
        auto selection = platform::TakeSelection().value_or(platform::FileSelection());
        plays = selection.plays;
        paths = std::move(selection.paths);
        // A file manager names first the one that was clicked.
        std::stable_sort(paths.begin(), paths.end(), &NaturalLess);
    }
    if (paths.empty())
        return Fail("zentaro-add FILE...: adds the files to the playlist");
    // Files of two calls at once do not mix, and only one of them starts a player.
    const auto lock = platform::HandOverLock::Take(2 * kStartTime, "add");
    return plays ? PlayAndAdd(std::move(paths)) : Add(paths, RunningPlayer());
}
