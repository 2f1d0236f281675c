#include "tests/live/SlowReads.h"

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <dlfcn.h>
#include <mutex>
#include <sys/uio.h>
#include <unistd.h>

namespace {

/// Somebody who waits for the reader must not wait for ever, or no test would fail.
constexpr std::chrono::seconds kLimit{ 20 };

std::atomic<bool> g_isOn = false;
std::atomic<int> g_held = 0;
std::mutex g_mutex;
std::condition_variable g_released;
std::string g_path;

void HoldIfSlow(int file)
{
    if (!g_isOn)
        return;
    std::array<char, 4096> path{};
    const auto link = "/proc/self/fd/" + std::to_string(file);
    if (::readlink(link.c_str(), path.data(), path.size() - 1) < 0)
        return;
    std::unique_lock lock(g_mutex);
    if (g_path != path.data())
        return;
    ++g_held;
    g_released.wait_for(lock, kLimit, [] { return !g_isOn; });
    --g_held;
}

} // namespace

// Exported by this program, they stand before the system's own for all its libraries.
extern "C" ssize_t read(int file, void* buffer, std::size_t size)
{
    static const auto real = reinterpret_cast<decltype(&read)>(::dlsym(RTLD_NEXT, "read"));
    HoldIfSlow(file);
    return real(file, buffer, size);
}

extern "C" ssize_t readv(int file, const iovec* buffers, int count)
{
    static const auto real = reinterpret_cast<decltype(&readv)>(::dlsym(RTLD_NEXT, "readv"));
    HoldIfSlow(file);
    return real(file, buffers, count);
}

namespace zentaro::live {

SlowReads::SlowReads(const std::string& path)
{
    const std::lock_guard lock(g_mutex);
    g_path = path;
    g_isOn = true;
}

SlowReads::~SlowReads()
{
    const std::lock_guard lock(g_mutex);
    g_isOn = false;
    g_released.notify_all();
}

bool SlowReads::IsHeld()
{
    return g_held > 0;
}

} // namespace zentaro::live
