#include "tests/desktop/Clips.h"
#include "tests/desktop/Process.h"
#include "tests/live/LivePlayer.h"

#include <cmath>
#include <filesystem>

namespace zentaro::live {
namespace {

using trial::Clips;

class Ends : public LivePlayer {
protected:
    /// Plays what is selected, or the first entry. Every item gets the rate, as a user would give it.
    void PlayAt(double rate)
    {
        m_rate = rate;
        m_rated = 0;
        played.clear();
        player.Sequence().CMDPlayClick();
    }
    bool RunUntilIdle()
    {
        return RunUntilAtRate([&] { return !player.State().mediaControlsEnabled; });
    }
    /// Nothing more is played and no after-play action is run.
    void ExpectIdleStays()
    {
        const auto before = played.size();
        const int restarts = world.power.restarts;
        RunFor(1100ms);
        EXPECT_EQ(played.size(), before);
        EXPECT_EQ(world.power.restarts, restarts);
        EXPECT_FALSE(player.State().mediaControlsEnabled);
    }

private:
    bool RunUntilAtRate(const std::function<bool()>& done)
    {
        return RunUntil(
            [&] {
                if (played.size() != m_rated && !done()) {
                    m_rated = played.size();
                    while (player.State().chosenRate < m_rate)
                        player.Transporting().IncreaseRate();
                }
                return done();
            },
            90s);
    }

    double m_rate = 1;
    std::size_t m_rated = 0;
};

TEST_F(Ends, ClipsOfAllLengthsEndOnceEachAtEveryRate)
{
    player.Sequence().PBCont();
    player.Sequence().SetRepeatMode(kNoRepeat);
    player.Sequence().DoAfter(1);
    std::vector<std::string> clips;
    for (const double seconds : { 0.3, 1.4, 1.6 })
        clips.push_back(Clips::Make("for-" + std::to_string(seconds) + ".mp4", seconds));
    AddEntries(clips);
    int ends = 0;
    for (const double rate : { 1, 4, 16 }) {
        SCOPED_TRACE(rate);
        for (const double seconds : { 20.4, 59.6 }) {
            if (rate < 16)
                break; // they would take their time
            clips.push_back(Clips::Make("for-" + std::to_string(seconds) + ".mp4", seconds));
            AddEntries({ clips.back() });
        }
        player.Entries().List().SetSelectedItem(0);
        PlayAt(rate);
        EXPECT_TRUE(RunUntilIdle());
        ExpectIdleStays();
        EXPECT_EQ(played, clips);
        EXPECT_EQ(world.power.restarts, ++ends);
    }
}

TEST_F(Ends, EveryKindOfFileEndsOnceAndIsFollowedByTheNext)
{
    player.Sequence().PBCont();
    player.Sequence().SetRepeatMode(kNoRepeat);
    std::vector<std::string> clips;
    for (const auto* const kind : { "mp4", "mkv", "avi", "mpg", "wmv", "mp3", "wav", "ogg", "wma", "m4a" })
        clips.push_back(Clips::Make(std::string("kind.") + kind, 1.6));
    AddEntries(clips);
    PlayAt(16);
    EXPECT_TRUE(RunUntilIdle());
    ExpectIdleStays();
    EXPECT_EQ(played, clips);
    EXPECT_TRUE(world.window.notes.empty());
}

TEST_F(Ends, TheShortestFilesEndAndOnlyThoseThatGiveNothingFail)
{
    player.Sequence().SetRepeatMode(kNoRepeat);
    const auto fails = [&](const std::string& path) {
        player.Editing().RemoveAll();
        AddEntries({ path });
        PlayAt(1);
        // As close to the end as can be: what was decoded last is not counted yet.
        auto& engine = *player.Transporting().Host().VLCPlayer();
        const auto limit = std::chrono::steady_clock::now() + 10s;
        while (engine.State() < Engine::kEnded && std::chrono::steady_clock::now() < limit) { }
        const bool failed = engine.State() == Engine::kFailed;
        EXPECT_TRUE(RunUntilIdle());
        return failed;
    };
    for (const auto* const kind : { "avi", "mkv", "mpg", "mp3", "aac", "wav", "ogg" })
        EXPECT_FALSE(fails(Clips::Make(std::string("short.") + kind, 0.3))) << kind;
    trial::WriteWholeFile(folder + "text.avi", "Only words.");
    trial::WriteWholeFile(folder + "noise.mp3", std::string(20'000, '\x55'));
    trial::WriteWholeFile(folder + "empty.mp4", "");
    // Its header tells of a length, but nothing is there to be decoded.
    std::filesystem::copy_file(Clips::Make("whole.mkv", 3), folder + "cut.mkv");
    std::filesystem::resize_file(folder + "cut.mkv", 700);
    for (const auto* const name : { "text.avi", "noise.mp3", "empty.mp4", "cut.mkv", "gone.mp4" })
        EXPECT_TRUE(fails(folder + name)) << name;
}

} // namespace
} // namespace zentaro::live
