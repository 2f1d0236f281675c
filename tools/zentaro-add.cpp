// Adds files to the playlist of the running player, or of one that it starts: zentaro-add FILE...
#include "app/SingleInstance.h"
#include "platform/Files.h"
#include "platform/HandOver.h"
#include "platform/StringStore.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

using namespace zentaro;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kStartTime = 30s; // for a player to come up
constexpr auto kLook = 50ms;

int Fail(const std::string& text)
{
    std::fprintf(stderr, "%s\n", text.c_str());
    return 1;
}

std::vector<std::string> PathsOf(int count, char** arguments)
{
    std::vector<std::string> paths;
    std::error_code ignored;
    for (int i = 1; i < count; ++i)
        paths.push_back(std::filesystem::absolute(arguments[i], ignored).string());
    return paths;
}

/// Players may come and go meanwhile.
std::string RunningPlayer()
{
    const auto handle =
        platform::StringStore::Open()->Read(platform::StringStore::Root::CurrentUser, HandOverKey(), kAddHandle, "");
    return platform::IsHandOverAlive(handle) ? handle : std::string();
}

/// The process number; 0 when nothing was started. It lives on without us.
pid_t StartPlayer()
{
    auto program = platform::ExecutableFolder() + "/zentaro";
    char* const arguments[] = { program.data(), nullptr };
    posix_spawnattr_t attributes;
    pid_t player = 0;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    if (posix_spawn(&player, program.c_str(), nullptr, &attributes, arguments, environ) != 0)
        player = 0;
    posix_spawnattr_destroy(&attributes);
    return player;
}

/// True when the process is over and has said that it failed. One that found another player ends in peace.
bool HasFailed(pid_t player)
{
    int status = 0;
    return waitpid(player, &status, WNOHANG) == player && status != 0;
}

/// The handle of a player other than the one that does not answer; empty when none comes up.
std::string NewPlayer(const std::string& silent)
{
    const auto started = StartPlayer();
    const auto end = Clock::now() + kStartTime;
    while (started > 0 && Clock::now() < end) {
        if (const auto handle = RunningPlayer(); !handle.empty() && handle != silent)
            return handle;
        if (HasFailed(started))
            break;
        std::this_thread::sleep_for(kLook);
    }
    return {};
}

} // namespace

int main(int count, char** arguments)
{
    const auto paths = PathsOf(count, arguments);
    if (paths.empty())
        return Fail("zentaro-add FILE...: adds the files to the playlist");
    // Files of two calls at once do not mix, and only one of them starts a player.
    const auto lock = platform::HandOverLock::Take(2 * kStartTime, "add");
    auto handle = RunningPlayer();
    std::string silent;
    for (std::size_t next = 0; next < paths.size();) {
        if (handle.empty())
            handle = NewPlayer(silent);
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
