#include "playback/PositionTick.h"
#include "playback/Engine.h"

#include <gtest/gtest.h>

using namespace zentaro;

namespace {

EngineReading At(double time, double length, int state = Engine::kPlaying, bool hasVideoOutput = true)
{
    return { true, state, length > 0 ? time / length : 0.5, time, length, hasVideoOutput, false };
}

/// All of a tick.
std::string Shown(const EngineReading& reading, bool controlsAreOn = true)
{
    const auto tick = ReadPosition(reading, controlsAreOn);
    return tick.timeText + (tick.isLoading ? " loading" : "")
        + (tick.progress ? " " + std::to_string(*tick.progress) + "%" : "")
        + (!tick.showAudioLogo        ? ""
                : *tick.showAudioLogo ? " logo"
                                      : " video")
        + (tick.hasEnded ? " ended" : "") + (tick.hasFailed ? " failed" : "");
}

} // namespace

TEST(PositionTick, shows_an_item_as_the_engine_tells_it)
{
    auto reading = At(1'000, 20'000, Engine::kEnded);
    reading.isLoaded = false;
    EXPECT_EQ(Shown(reading), "00:00:00 / 00:00:00");
    constexpr int kOpening = Engine::kPlaying - 1;
    EXPECT_EQ(Shown(At(0, 0, kOpening, false)), "00:00:00 / 00:00:00 loading 50%");
    EXPECT_EQ(Shown(At(0, 0, kOpening, false), false), "00:00:00 / 00:00:00 50%");
    EXPECT_EQ(Shown(At(5'000, 20'000, Engine::kPaused)), "00:00:05 / 00:00:20 25% video");
    EXPECT_EQ(Shown(At(5'000, 20'000, Engine::kPlaying, false)), "00:00:05 / 00:00:20 25% logo");
    EXPECT_EQ(Shown(At(360'000'000, -1)), "100:00:00 / 00:00:00 50% video");
    // Times and percent go to the nearest, halves to the even neighbour; at 0 the bar stays as it is.
    EXPECT_EQ(Shown(At(2'500, 20'000)), "00:00:02 / 00:00:20 12% video");
    EXPECT_EQ(Shown(At(7'500, 20'000), false), "00:00:08 / 00:00:20 38% video");
    EXPECT_EQ(Shown(At(10, 59'600)), "00:00:00 / 00:01:00 0% video");
    EXPECT_EQ(Shown(At(0, 59'600)), "00:00:00 / 00:01:00 video");
    EXPECT_EQ(Shown(At(-1, 59'600)), "00:00:00 / 00:01:00 video");
}

TEST(PositionTick, an_item_ends_when_its_whole_seconds_go_once_into_the_elapsed_ones_or_by_its_state)
{
    const auto ends = [](double time, double length, int state = Engine::kPlaying) {
        const auto shown = Shown(At(time, length, state));
        return shown.ends_with(" failed") ? 2 : shown.ends_with(" ended") ? 1 : 0;
    };
    EXPECT_EQ(ends(59'499, 59'600), 0);
    EXPECT_EQ(ends(59'500, 59'600), 1);
    EXPECT_EQ(ends(20'000, 20'400, Engine::kPaused), 1);
    EXPECT_EQ(ends(119'000, 60'000), 1);
    EXPECT_EQ(ends(120'000, 60'000), 0);
    EXPECT_EQ(ends(300, 300), 0); // a total of no second
    EXPECT_EQ(ends(5'000, 0), 0);
    EXPECT_EQ(ends(-20'000, -500), 0);
    EXPECT_EQ(ends(300, 300, Engine::kEnded), 1);
    EXPECT_EQ(ends(1'000, 20'000, Engine::kStopped), 0);
    EXPECT_EQ(ends(1'000, 20'000, Engine::kFailed), 2);
    EXPECT_EQ(Shown(At(5'000, 5'000, Engine::kFailed), false), "00:00:05 / 00:00:05 100%") << "it has ended already";
    auto disc = At(5'000, 5'000);
    disc.isDisc = true;
    EXPECT_EQ(Shown(disc), "00:00:05 / 00:00:05 100% video");
}
