#include "inspect/SoundBars.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zentaro {
namespace {

std::vector<std::int16_t> Tone(double frequency, double loudness, double seconds)
{
    std::vector<std::int16_t> samples(static_cast<std::size_t>(seconds * kBarSoundRate));
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<std::int16_t>(
            32'767 * loudness * std::sin(2 * std::numbers::pi * frequency * static_cast<double>(i) / kBarSoundRate));
    return samples;
}

std::size_t Highest(const BarPicture& picture)
{
    return static_cast<std::size_t>(std::ranges::max_element(picture) - picture.begin());
}

TEST(SoundBars, AToneRaisesItsBarAndHigherTonesOnesFurtherRight)
{
    std::size_t before = 0;
    for (const double frequency : { 50.0, 110.0, 220.0, 440.0, 1000.0, 3000.0, 9000.0 }) {
        const auto picture = BarsOf(Tone(frequency, 0.5, 0.5))[7];
        const auto bar = Highest(picture);
        EXPECT_TRUE(before == 0 || bar > before) << frequency;
        EXPECT_GT(picture[bar], 160) << frequency;
        EXPECT_LT(picture[(bar + kBars / 2) % kBars], 60) << frequency;
        before = bar;
    }
}

TEST(SoundBars, SilenceLiesDownAndSofterIsLower)
{
    EXPECT_EQ(BarsOf(Tone(440, 0, 0.2))[3], BarPicture());
    const auto loud = BarsOf(Tone(440, 0.2, 0.3))[4];
    const auto soft = BarsOf(Tone(440, 0.025, 0.3))[4];
    EXPECT_NEAR(loud[Highest(loud)] - soft[Highest(loud)], 18.0 / 62 * 255, 6);
}

TEST(SoundBars, APictureStandsForItsMomentAndEveryPieceHasItsPictures)
{
    auto sound = Tone(440, 0, 1);
    const auto beat = Tone(440, 0.9, 0.1);
    std::ranges::copy(beat, sound.begin() + kBarSoundRate / 2);
    const auto pictures = BarsOf(sound);
    ASSERT_EQ(pictures.size(), 30U);
    const auto bar = Highest(pictures[16]);
    const auto loudest =
        std::ranges::max_element(pictures, {}, [&](const BarPicture& picture) { return picture[bar]; });
    EXPECT_NEAR(static_cast<double>(loudest - pictures.begin()), 16.5, 1.5);
    EXPECT_EQ(pictures[10][bar], 0);
    EXPECT_EQ(BarsOf({}).size(), 0U);
    EXPECT_EQ(BarsOf(Tone(440, 0.9, 0.01)).size(), 1U);
}

} // namespace
} // namespace zentaro
