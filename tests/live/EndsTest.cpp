#include "tests/desktop/Clips.h"
#include "tests/live/LivePlayer.h"

#include <cmath>
#include <cstdlib>

namespace zentaro::live {
namespace {

using desktop::Clips;

bool IsLongRun()
{
    static const bool asked = std::getenv("ZENTARO_LONG_RUN") != nullptr;
    return asked;
}

class Ends : public LivePlayer {
protected:
    /// Plays what is selected, or the first entry. Every item gets the rate, as a user would give it.
    void PlayAt(double rate)
    {
        m_rate = rate;
        m_rated = 0;
        watch.played.clear();
        player.CMDPlayClick();
    }
    bool RunUntilPlayed(std::size_t count)
    {
        return RunUntilAtRate([&] { return watch.played.size() >= count; });
    }
    bool RunUntilIdle()
    {
        return RunUntilAtRate([&] { return !player.MediaControlsEnabled(); });
    }
    /// Nothing more is played and no after-play action is run.
    void ExpectIdleStays()
    {
        const auto played = watch.played.size();
        const int restarts = world.power.restarts;
        RunFor(1100ms);
        EXPECT_EQ(watch.played.size(), played);
        EXPECT_EQ(world.power.restarts, restarts);
        EXPECT_FALSE(player.MediaControlsEnabled());
    }

private:
    bool RunUntilAtRate(const std::function<bool()>& done)
    {
        return RunUntil(
            [&] {
                if (watch.played.size() != m_rated && !done()) {
                    m_rated = watch.played.size();
                    while (player.Rate().Value() < m_rate)
                        player.IncreaseRate();
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
    player.PBCont();
    player.SetRepeatMode(kNoRepeat);
    player.DoAfter(1);
    std::vector<std::string> clips;
    for (const double seconds : { 0.3, 1.4, 1.6 })
        clips.push_back(Clips::Make("for-" + std::to_string(seconds) + ".mp4", seconds));
    AddEntries(clips);
    int ends = 0;
    for (const double rate : { 1, 4, 16 }) {
        SCOPED_TRACE(rate);
        // The long ones where they take no time; all of them when there is time.
        if (clips.size() == 3 && (rate == 16 || IsLongRun())) {
            for (const double seconds : { 20.4, 59.6 }) {
                clips.push_back(Clips::Make("for-" + std::to_string(seconds) + ".mp4", seconds));
                AddEntries({ clips.back() });
            }
        }
        player.Entries().List().SetSelectedItem(0);
        PlayAt(rate);
        EXPECT_TRUE(RunUntilIdle());
        ExpectIdleStays();
        EXPECT_EQ(watch.played, clips);
        EXPECT_EQ(world.power.restarts, ++ends);
    }
}

TEST_F(Ends, EveryKindOfFileEndsOnceAndIsFollowedByTheNext)
{
    player.PBCont();
    player.SetRepeatMode(kNoRepeat);
    std::vector<std::string> clips;
    for (const auto* const kind : { "mp4", "mkv", "avi", "mpg", "wmv", "mp3", "wav", "ogg", "wma", "m4a" })
        clips.push_back(Clips::Make(std::string("kind.") + kind, 1.6));
    AddEntries(clips);
    for (const double rate : { 1, 16 }) {
        if (rate == 1 && !IsLongRun())
            continue;
        player.Entries().List().SetSelectedItem(0);
        PlayAt(rate);
        EXPECT_TRUE(RunUntilIdle());
        ExpectIdleStays();
        EXPECT_EQ(watch.played, clips);
    }
    EXPECT_EQ(world.screen.notes, 0);
}

struct Mode {
    const char* name;
    std::int32_t play;
    std::int32_t repeat;
    std::size_t first;               ///< the entry that is played first
    std::vector<std::size_t> played; ///< positions of the order after the first one
    bool stops;
};

class EndsByMode : public Ends, public testing::WithParamInterface<Mode> { };

TEST_P(EndsByMode, TheOrderAndTheRepeatModeSayWhatFollows)
{
    const auto& mode = GetParam();
    std::vector<std::string> clips;
    for (const double seconds : { 0.3, 1.4, 1.6 })
        clips.push_back(Clips::Make("for-" + std::to_string(seconds) + ".mp4", seconds));
    AddEntries(clips);
    player.DoAfter(1);
    player.Entries().List().SetSelectedItem(static_cast<int>(mode.first));
    if (mode.play == kPlayNormal)
        player.PBNormal();
    else
        mode.play == kPlayContinuous ? player.PBCont() : player.PBShuffle();
    player.SetRepeatMode(mode.repeat);
    std::vector<std::string> expected = { clips[mode.first] };
    for (const auto position : mode.played)
        expected.push_back(clips[static_cast<std::size_t>(player.Entries().Order().At(static_cast<int>(position)))]);
    PlayAt(16);
    if (mode.stops) {
        EXPECT_TRUE(RunUntilIdle());
        ExpectIdleStays();
        EXPECT_EQ(world.power.restarts, 1);
    } else {
        if (mode.repeat == kRepeatSingle)
            expected.assign(4, clips[mode.first]);
        EXPECT_TRUE(RunUntilPlayed(expected.size()));
        EXPECT_EQ(world.power.restarts, 0);
    }
    EXPECT_EQ(watch.played, expected);
    EXPECT_EQ(watch.mostAlive, 1);
}

INSTANTIATE_TEST_SUITE_P(Modes, EndsByMode,
    testing::Values(Mode{ "normal", kPlayNormal, kRepeatAll, 1, {}, true },
        Mode{ "continuous", kPlayContinuous, kNoRepeat, 1, { 2 }, true },
        Mode{ "continuousRepeated", kPlayContinuous, kRepeatAll, 1, { 2, 0, 1 }, false },
        Mode{ "shuffle", kPlayShuffle, kNoRepeat, 0, { 1, 2 }, true },
        Mode{ "shuffleRepeated", kPlayShuffle, kRepeatAll, 0, { 1, 2, 0, 1 }, false },
        Mode{ "repeatOne", kPlayShuffle, kRepeatSingle, 2, {}, false }),
    [](const auto& test) { return test.param.name; });

} // namespace
} // namespace zentaro::live
