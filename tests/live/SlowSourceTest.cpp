#include "tests/desktop/Clips.h"
#include "tests/live/LivePlayer.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <condition_variable>
#include <dlfcn.h>
#include <filesystem>
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
namespace {

using trial::Clips;

/// A source that does not answer: from now on every read of that file in this process, by whichever library, waits
/// until the object goes, or for 20 s. One at a time.
class SlowReads {
public:
    explicit SlowReads(const std::string& path)
    {
        const std::lock_guard lock(g_mutex);
        g_path = path;
        g_isOn = true;
    }
    SlowReads(const SlowReads&) = delete;
    ~SlowReads()
    {
        const std::lock_guard lock(g_mutex);
        g_isOn = false;
        g_released.notify_all();
    }

    /// Whether somebody waits.
    static bool IsHeld() { return g_held > 0; }
};

class SlowSource : public LivePlayer {
protected:
    SlowSource()
    {
        player.Sequence().PBCont();
        AddEntries({ slow, good });
    }
    /// Copies of their own: nobody else's reads are held.
    std::string Copied(const std::string& name) const
    {
        std::filesystem::copy_file(Clips::Make("long.avi", 60), folder + name);
        return folder + name;
    }
    /// How long the window is held up.
    template <class Work> static auto TimeOf(const Work& work)
    {
        const auto start = std::chrono::steady_clock::now();
        work();
        return std::chrono::steady_clock::now() - start;
    }
    auto Surfaces() const { return frame.findChildren<VideoSurface*>(); }
    auto ShownSurfaces() const
    {
        return std::ranges::count_if(Surfaces(), [](const auto* surface) { return surface->isVisible(); });
    }
    Engine& PresentEngine() { return *player.Transporting().Host().VLCPlayer(); }
    bool RunUntilItPlays()
    {
        return RunUntil([&] { return EngineState() == Engine::kPlaying && Time() > 0; });
    }

    static constexpr auto kNoWait = 250ms; // a crowded machine adds some to the 100 that a user does not feel
    const std::string slow = Copied("slow.avi");
    const std::string good = Copied("good.avi");
};

TEST_F(SlowSource, NeitherStopNorNextWaitsForAReadAndTheNextItemPlays)
{
    player.Sequence().PlayChosen(0, false);
    ASSERT_TRUE(RunUntilItPlays());
    {
        const SlowReads reads(slow);
        ASSERT_TRUE(RunUntil([] { return SlowReads::IsHeld(); }));
        EXPECT_LT(TimeOf([&] { player.OnPositionTick(); }), kNoWait);
        EXPECT_LT(TimeOf([&] { player.Transporting().cmdStopClick(); }), kNoWait);
        EXPECT_EQ(ShownSurfaces(), 0);
        // Once more from the start, and away from it.
        EXPECT_LT(TimeOf([&] { PresentEngine().Play(); }), kNoWait);
        EXPECT_EQ(ShownSurfaces(), 1);
        RunFor(300ms);
        EXPECT_LT(TimeOf([&] { player.Sequence().PlayChosen(1, false); }), kNoWait);
        EXPECT_EQ(ShownSurfaces(), 1);
        EXPECT_TRUE(RunUntilItPlays());
        EXPECT_EQ(played.back(), good);
        EXPECT_TRUE(SlowReads::IsHeld());
        EXPECT_EQ(Surfaces().size(), 3);
    }
    // What has ended at last takes its surface away and nothing else.
    EXPECT_TRUE(RunUntil([&] { return Surfaces().size() == 1; }));
    EXPECT_EQ(ShownSurfaces(), 1);
    EXPECT_TRUE(RunUntil([&, before = Time()] { return Time() > before; }));
}

TEST_F(SlowSource, APauseGivenWhileItOpensHoldsOnceItPlaysUnlessItIsTakenBack)
{
    for (const bool takenBack : { false, true }) {
        {
            const SlowReads reads(slow);
            player.Sequence().PlayChosen(0, false);
            ASSERT_TRUE(RunUntil([] { return SlowReads::IsHeld(); }));
            PresentEngine().SetPause(true);
            if (takenBack)
                PresentEngine().SetPause(false);
        }
        if (takenBack) {
            EXPECT_TRUE(RunUntilItPlays());
            continue;
        }
        EXPECT_TRUE(RunUntil([&] { return EngineState() == Engine::kPaused; }));
        const auto time = Time();
        RunFor(1100ms);
        EXPECT_EQ(EngineState(), Engine::kPaused);
        EXPECT_EQ(Time(), time);
        PresentEngine().TogglePause();
        EXPECT_TRUE(RunUntil([&] { return EngineState() == Engine::kPlaying && Time() > time; }));
    }
}

} // namespace
} // namespace zentaro::live
