#include "tests/desktop/Clips.h"
#include "tests/live/LivePlayer.h"
#include "tests/live/SlowReads.h"

#include <algorithm>
#include <filesystem>

namespace zentaro::live {
namespace {

using trial::Clips;

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
        return RunUntil([&] { return watch.state == Engine::kPlaying && watch.time > 0; });
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
        EXPECT_EQ(watch.alive, 1);
        // Once more from the start, and away from it.
        EXPECT_LT(TimeOf([&] { PresentEngine().Play(); }), kNoWait);
        EXPECT_EQ(ShownSurfaces(), 1);
        RunFor(300ms);
        EXPECT_LT(TimeOf([&] { player.Sequence().PlayChosen(1, false); }), kNoWait);
        EXPECT_EQ(ShownSurfaces(), 1);
        watch.time = 0;
        EXPECT_TRUE(RunUntilItPlays());
        EXPECT_EQ(watch.played.back(), good);
        EXPECT_TRUE(SlowReads::IsHeld());
        EXPECT_EQ(Surfaces().size(), 3);
    }
    // What has ended at last takes its surface away and nothing else.
    EXPECT_TRUE(RunUntil([&] { return Surfaces().size() == 1; }));
    EXPECT_EQ(ShownSurfaces(), 1);
    watch.time = 0;
    EXPECT_TRUE(RunUntilItPlays());
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
        EXPECT_TRUE(RunUntil([&] { return watch.state == Engine::kPaused; }));
        const auto time = watch.time;
        RunFor(1100ms);
        EXPECT_EQ(watch.state, Engine::kPaused);
        EXPECT_EQ(watch.time, time);
        PresentEngine().TogglePause();
        watch.time = 0;
        EXPECT_TRUE(RunUntil([&] { return watch.state == Engine::kPlaying && watch.time > time; }));
    }
}

} // namespace
} // namespace zentaro::live
