#include "playback/Transport.h"
#include "tests/world/FakeEngine.h"

#include <gtest/gtest.h>

using namespace zentaro;

namespace {

class TransportTest : public testing::Test, protected TransportObserver {
protected:
    void MediaControlsSet(bool enabled) override { said += enabled ? "on " : "off "; }
    void RateChanged(const RateChange&) override { said += "rate "; }
    void TransportChanged() override { ++changes; }

    void PlayItem(TransportItem::Kind kind = TransportItem::Kind::File)
    {
        ASSERT_TRUE(transport.Open({ kind, "/a.avi", "a" }, { "/a.avi", false }, {}));
        transport.Play();
        transport.ItemStarted();
    }

    FakeEngines engines;
    EngineTrace& trace = engines.trace;
    std::string said;
    int changes = 0;
    Transport transport{ engines, [](bool) {}, *this };
    const TransportState& state = transport.State();
};

} // namespace

TEST_F(TransportTest, an_item_is_shown_as_the_engine_tells_it_and_ends_once)
{
    PlayItem();
    EXPECT_EQ(state.rateText, "Loading...");
    trace.time = 15'000;
    trace.length = 60'000;
    EXPECT_FALSE(transport.OnPositionTick());
    EXPECT_EQ(state.timeText + " " + state.rateText, "00:00:15 / 00:01:00 Playing rate:1x");
    EXPECT_EQ(state.progress, 0.25);
    EXPECT_EQ(state.length, 60'000);
    EXPECT_TRUE(state.isWatched && state.hasVideoOutput && !state.showAudioLogo);
    trace.hasVideo = false;
    transport.OnPositionTick();
    EXPECT_TRUE(state.showAudioLogo && !state.isWatched && !state.hasVideoOutput);
    trace.time = trace.length;
    const auto end = transport.OnPositionTick();
    ASSERT_TRUE(end);
    EXPECT_FALSE(end->isDisc || end->hasFailed);
    EXPECT_FALSE(transport.OnPositionTick());
    EXPECT_EQ(said, "on off ");
    transport.cmdStopClick();
    EXPECT_EQ(state.timeText, "00:00:00 / 00:00:00");
    EXPECT_FALSE(state.showAudioLogo);
    EXPECT_EQ(state.progress, 0);
}

TEST_F(TransportTest, steps_stop_short_of_both_ends_and_need_an_item)
{
    transport.SeekBy(5'000);
    transport.Seek(0.5);
    EXPECT_EQ(state.progress, 0);
    PlayItem();
    trace.length = 20'000;
    const auto stepFrom = [&](double time, int milliseconds) {
        trace.time = time;
        transport.SeekBy(milliseconds);
        EXPECT_DOUBLE_EQ(state.progress * trace.length, trace.time);
        return trace.time;
    };
    EXPECT_EQ(stepFrom(10'000, -5'000), 5'000);
    EXPECT_EQ(stepFrom(2'000, -5'000), 0);
    EXPECT_NEAR(stepFrom(10'000, 30'000), 18'500, 1);
    EXPECT_NEAR(stepFrom(19'800, 5'000), 19'800, 1); // who is there already is not thrown back
}

TEST_F(TransportTest, the_wheel_adds_parts_of_a_notch_until_it_turns_back)
{
    for (const auto& [turn, volume] :
        { std::pair(120, 100), { -80, 100 }, { -80, 95 }, { 100, 95 }, { 20, 100 }, { -120 * 50, 0 } }) {
        transport.TurnVolume(turn);
        EXPECT_EQ(state.volume, volume);
    }
    PlayItem();
    EXPECT_EQ(trace.volume, 0); // a fresh engine is told
}

TEST_F(TransportTest, the_chosen_rate_holds_for_an_item_and_what_is_held_ends_with_it)
{
    transport.RewindPressed(); // of nothing
    EXPECT_FALSE(state.isRewinding);
    PlayItem();
    transport.IncreaseRate();
    EXPECT_EQ(trace.rateSet, 2);
    EXPECT_EQ(state.rateText, "Playing rate:2x");
    transport.cmdffMouseDown();
    transport.RewindPressed();
    EXPECT_TRUE(state.isRewinding);
    trace.length = 10'000;
    trace.time = 5'000;
    for (const double expected : { 4'990, 4'980 }) {
        transport.OnRewindTick();
        EXPECT_NEAR(trace.time, expected, 1e-6);
    }
    trace.time = 5;
    transport.OnRewindTick();
    EXPECT_EQ(trace.time, 0);
    transport.RewindReleased();
    trace.time = 5'000;
    transport.OnRewindTick(); // which was on its way
    EXPECT_EQ(trace.time, 5'000);
    transport.RewindPressed();
    PlayItem();
    EXPECT_FALSE(state.isRewinding);
    EXPECT_EQ(state.chosenRate, 1);
    EXPECT_EQ(trace.rateSet, 0);
    transport.cmdffMouseUp(); // comes too late for anything
    EXPECT_EQ(trace.rateSet, 0);
    transport.cmdffMouseDown();
    EXPECT_EQ(trace.rateSet, 10);
    transport.RewindPressed();
    trace.state = Engine::kEnded;
    transport.OnPositionTick();
    EXPECT_FALSE(state.isRewinding);
    EXPECT_EQ(trace.rateSet, 1);
    transport.IncreaseRate(); // without an item it is only remembered
    EXPECT_EQ(state.chosenRate, 2);
    EXPECT_EQ(trace.rateSet, 1);
}

TEST_F(TransportTest, a_film_that_nobody_sees_plays_by_its_sound_alone_after_a_while)
{
    const auto ticks = [&](int count) {
        while (count-- > 0)
            transport.OnPositionTick();
        return trace.isSeen;
    };
    transport.SetSeen(false); // before there is anything
    PlayItem();
    EXPECT_TRUE(ticks(5));
    EXPECT_FALSE(ticks(1));
    transport.SetSeen(true);
    EXPECT_TRUE(trace.isSeen);
    transport.SetSeen(false);
    EXPECT_TRUE(ticks(5));
    transport.SetSeen(true); // only a glance away
    transport.SetSeen(false);
    EXPECT_TRUE(ticks(5));
    PlayItem(TransportItem::Kind::Disc);
    EXPECT_TRUE(ticks(20));
}

TEST_F(TransportTest, a_pause_of_an_item_that_still_opens_is_kept_and_taken_back)
{
    trace.state = 1; // opening
    PlayItem();
    transport.CMDPauseClick();
    EXPECT_TRUE(state.isPaused);
    EXPECT_EQ(trace.state, Engine::kPaused); // what the engine was told
    trace.state = 1;
    transport.OnPositionTick();
    EXPECT_TRUE(state.isPaused);
    transport.CMDPauseClick();
    EXPECT_FALSE(state.isPaused);
    EXPECT_EQ(trace.state, Engine::kPlaying);
    transport.CMDPauseClick();
    EXPECT_TRUE(state.isPaused);
    transport.CMDPauseClick();
    transport.OnPositionTick();
    EXPECT_FALSE(state.isPaused);
}
