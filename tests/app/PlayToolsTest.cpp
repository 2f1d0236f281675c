#include "playback/AbLoop.h"
#include "tests/app/PlayerFixture.h"

namespace zentaro {
namespace {

using namespace std::chrono_literals;

class PlayToolsTest : public PlayerTest {
protected:
    PlayToolsTest()
    {
        StartWithEntries(3, kPlayContinuous, kNoRepeat);
        trace.length = 100'000;
    }
};

TEST_F(PlayToolsTest, a_part_plays_again_and_again_to_the_moment)
{
    trace.time = 30'000;
    Run("MarkLoop");
    trace.time = 20'000;
    Run("MarkLoop");
    world.player->OnPositionTick();
    EXPECT_EQ(trace.time, 20'000) << "before its end nothing happens";
    trace.time = 29'700;
    world.player->OnPositionTick();
    EXPECT_EQ(trace.time, 29'700);
    trace.time = 30'000;
    world.Elapse(300ms);
    EXPECT_DOUBLE_EQ(trace.time, 20'000);
    Run("MarkLoop");
    trace.time = 40'000;
    world.player->OnPositionTick();
    EXPECT_EQ(trace.time, 40'000);
}

TEST_F(PlayToolsTest, a_time_is_asked_for_and_gone_to)
{
    Run("JumpToTime");
    world.dialogs.chooseTime("1:02");
    EXPECT_DOUBLE_EQ(trace.time, 62'000);
    for (const auto* text : { "", "2:00", "tomorrow" })
        world.dialogs.chooseTime(text);
    EXPECT_DOUBLE_EQ(trace.time, 62'000);
    EXPECT_EQ(world.window.notes,
        (std::vector<std::string>{ "The item is not that long", "A time looks like this: 1:02:30" }));
    EXPECT_EQ(ParseTime("1:00:00.5"), 3'600'500);
    for (const auto* text : { "1:2:3:4", "1.5:00", "-1", "1e3", ":", "nan", "0x10" })
        EXPECT_FALSE(ParseTime(text)) << text;
}

TEST_F(PlayToolsTest, it_stops_after_this_one_and_by_the_clock)
{
    Run("StopAfterThis");
    EndItem();
    EXPECT_FALSE(IsLoaded());
    EXPECT_EQ(Starts(), 1U);
    Run("Play");
    EndItem();
    EXPECT_EQ(Starts(), 3U) << "it was meant for that one";
    Run("SleepTimer");
    Run("SleepTimer");
    EXPECT_EQ(world.player->Tools().SleepTime(), 30);
    world.Elapse(15min);
    EXPECT_TRUE(IsLoaded()) << "the time chosen first does not count";
    world.Elapse(15min);
    EXPECT_FALSE(IsLoaded());
}

TEST_F(PlayToolsTest, speed_goes_in_small_steps_and_sound_beyond_full)
{
    Run("FasterALittle");
    EXPECT_DOUBLE_EQ(trace.rateSet, 1.05);
    Run("IncreaseSpeed");
    EXPECT_DOUBLE_EQ(trace.rateSet, 2);
    Run("ResetSpeed");
    for (int i = 0; i < 30; ++i)
        Run("SlowerALittle");
    EXPECT_DOUBLE_EQ(trace.rateSet, 0.125);
    EXPECT_FALSE(IsEnabled("DecreaseSpeed"));

    world.player->Transporting().SetVolume(60);
    Run("MoreThanFullVolume");
    EXPECT_EQ(trace.volume, 110);
    for (int i = 0; i < 9; ++i)
        Run("MoreThanFullVolume");
    EXPECT_EQ(trace.volume, 150);
    EXPECT_EQ(world.player->State().volume, 100);
    Run("Quieter");
    EXPECT_EQ(trace.volume, 95);
    world.player->Transporting().SetVolume(100);
    EXPECT_EQ(trace.volume, 100);
}

TEST_F(PlayToolsTest, delays_and_tracks_stay_with_their_file)
{
    trace.length = 6'000'000;
    trace.time = 1'000'000;
    world.player->OnPositionTick();
    Run("SoundLater");
    Run("SoundLater");
    world.player->OnPositionTick();
    Run("Next");
    world.player->OnPositionTick();
    EXPECT_EQ(trace.audioDelay, 0);
    Run("Previous");
    world.player->OnPositionTick();
    EXPECT_EQ(trace.audioDelay, 100);
}

TEST_F(PlayToolsTest, the_time_that_is_left_stands_in_place_of_the_time)
{
    trace.time = 40'000;
    world.player->OnPositionTick();
    Run("ShowRemaining");
    EXPECT_EQ(world.player->Tools().TimeText(), "-00:01:00 / 00:01:40");
    Run("Stop");
    EXPECT_EQ(world.player->Tools().TimeText(), "00:00:00 / 00:00:00");
}

} // namespace
} // namespace zentaro
