#include "playback/PositionTick.h"
#include "playback/Engine.h"

#include <gtest/gtest.h>

using namespace zentaro;

namespace {

EngineReading Playing(double time, double length)
{
    EngineReading reading;
    reading.isLoaded = true;
    reading.state = Engine::kPlaying;
    reading.position = length > 0 ? time / length : 0.5;
    reading.time = time;
    reading.length = length;
    reading.hasVideoOutput = true;
    return reading;
}

EngineReading InState(int state, EngineReading reading = Playing(1'000, 20'000))
{
    reading.state = state;
    return reading;
}

bool Ends(const EngineReading& reading)
{
    return ReadPosition(reading, true).hasEnded;
}

} // namespace

TEST(PositionTick, without_an_item_shows_zero_times_and_touches_nothing_else)
{
    auto reading = InState(Engine::kEnded);
    reading.isLoaded = false;
    const auto tick = ReadPosition(reading, true);
    EXPECT_EQ(tick.timeText, "00:00:00 / 00:00:00");
    EXPECT_FALSE(tick.isLoading || tick.progress || tick.showAudioLogo || tick.hasEnded);
}

TEST(PositionTick, an_item_loads_until_it_plays_and_its_logo_is_settled_only_while_it_does)
{
    auto opening = InState(Engine::kPlaying - 1);
    opening.hasVideoOutput = false;
    EXPECT_TRUE(ReadPosition(opening, true).isLoading);
    EXPECT_FALSE(ReadPosition(opening, false).isLoading);
    EXPECT_FALSE(ReadPosition(opening, true).showAudioLogo);
    const auto video = ReadPosition(InState(Engine::kPaused), true);
    EXPECT_FALSE(video.isLoading);
    EXPECT_EQ(video.showAudioLogo, false);
    EXPECT_EQ(ReadPosition(InState(Engine::kPlaying, opening), true).showAudioLogo, true);
    EXPECT_FALSE(ReadPosition(InState(Engine::kEnded, opening), true).showAudioLogo);
}

TEST(PositionTick, the_bar_gets_whole_percent_and_stays_while_the_position_is_not_positive)
{
    auto reading = Playing(0, 0);
    const auto progressAt = [&](double position) {
        reading.position = position;
        return ReadPosition(reading, true).progress;
    };
    EXPECT_EQ(progressAt(0.125), 12); // halves go to the even neighbour
    EXPECT_EQ(progressAt(0.375), 38);
    EXPECT_EQ(progressAt(0.001), 0);
    EXPECT_FALSE(progressAt(0));
    EXPECT_FALSE(progressAt(-1));
}

TEST(PositionTick, the_label_shows_the_times_also_while_the_controls_are_off)
{
    EXPECT_EQ(ReadPosition(Playing(1'500, 59'600), false).timeText, "00:00:02 / 00:01:00");
    EXPECT_EQ(ReadPosition(Playing(-1, -1), true).timeText, "00:00:00 / 00:00:00");
}

TEST(PositionTick, the_clock_ends_an_item_when_its_whole_seconds_go_once_into_the_elapsed_ones)
{
    EXPECT_FALSE(Ends(Playing(59'499, 59'600)));
    EXPECT_TRUE(Ends(Playing(59'500, 59'600)));
    EXPECT_TRUE(Ends(InState(Engine::kPaused, Playing(20'000, 20'400))));
    EXPECT_TRUE(Ends(Playing(119'000, 60'000)));
    EXPECT_FALSE(Ends(Playing(120'000, 60'000)));
    EXPECT_FALSE(Ends(Playing(300, 300))); // a total of no second
    EXPECT_FALSE(Ends(Playing(5'000, 0)));
    EXPECT_FALSE(Ends(Playing(-1, -1)));
    EXPECT_FALSE(Ends(Playing(-20'000, -20'000 + 19'500)));
}

TEST(PositionTick, the_state_ends_an_item_whose_clock_says_nothing)
{
    EXPECT_FALSE(Ends(InState(Engine::kStopped)));
    EXPECT_TRUE(Ends(InState(Engine::kEnded)));
    EXPECT_TRUE(Ends(InState(Engine::kFailed)));
    EXPECT_TRUE(Ends(InState(Engine::kEnded, Playing(300, 300))));
}

TEST(PositionTick, only_the_engine_knows_whether_an_item_has_failed)
{
    // Position, time and length of a very short file are 0 to its end, and a broken one can tell of a length.
    auto brief = Playing(-1, -1);
    brief.position = 0;
    EXPECT_FALSE(ReadPosition(InState(Engine::kEnded, brief), true).hasFailed);
    EXPECT_TRUE(ReadPosition(InState(Engine::kFailed), true).hasFailed);
    EXPECT_FALSE(ReadPosition(Playing(59'500, 59'600), true).hasFailed);
}

TEST(PositionTick, a_disc_ends_by_its_state_alone)
{
    auto disc = Playing(5'000, 5'000);
    disc.isDisc = true;
    EXPECT_FALSE(Ends(disc));
    EXPECT_TRUE(Ends(InState(Engine::kEnded, disc)));
}

TEST(PositionTick, an_end_counts_only_while_the_controls_are_on)
{
    const auto tick = ReadPosition(InState(Engine::kFailed, Playing(5'000, 5'000)), false);
    EXPECT_FALSE(tick.hasEnded || tick.hasFailed);
}
