#include "app/Music.h"
#include "playback/SmoothClock.h"
#include "shell/BarMotion.h"
#include "shell/MusicLayout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

namespace zentaro {
namespace {

using namespace std::chrono_literals;

struct ScriptedRunner : MusicRunner {
    void FindCover(const std::string& path, std::function<void(Cover)> done) override
    {
        covers.emplace_back(path, std::move(done));
    }
    void MakeBars(const SoundPiece& piece, std::function<void(BarPictures)> done) override
    {
        EXPECT_FALSE(answer) << "two at a time";
        made.push_back(piece.start);
        answer = std::move(done);
    }
    void CancelBars() override { answer = nullptr; }
    /// The pictures are numbered by their first bar.
    void Answer(int pictures = 1800)
    {
        std::vector<BarPicture> bars(static_cast<std::size_t>(pictures));
        for (std::size_t i = 0; i < bars.size(); ++i)
            bars[i][0] = static_cast<std::uint8_t>(i);
        const auto done = std::exchange(answer, nullptr);
        ASSERT_TRUE(done);
        done(std::make_shared<const std::vector<BarPicture>>(std::move(bars)));
    }

    std::vector<std::pair<std::string, std::function<void(Cover)>>> covers;
    std::vector<int> made;
    std::function<void(BarPictures)> answer;
};

PlaylistEntry SongNamed(std::uint64_t id, MediaFacts facts)
{
    return { "file " + std::to_string(id), "/song" + std::to_string(id), {}, {}, id, std::move(facts) };
}

struct MusicTest : testing::Test {
    ScriptedRunner runner;
    Music music{ runner };
    const Cover cover{ Picture(1, 1, { 0xFF112233 }), "/cover.jpg" };
    const PlaylistEntry told = SongNamed(1, { .duration = 200, .artist = "A", .song = "S", .number = 3, .year = 1987 });
    const PlaylistEntry untold = SongNamed(2, { .duration = 200 });
};

TEST_F(MusicTest, ASongIsShownAtOnceWithItsThumbnailAndThenItsCoverAndNotOneOfWhichNothingIsKnown)
{
    music.Follow(told);
    ASSERT_TRUE(music.Shown());
    EXPECT_EQ(music.Shown()->title, "S");
    EXPECT_EQ(music.Shown()->Lines(), (std::vector<std::string>{ "A", "Track 3 \u00B7 1987" }));
    runner.covers[0].second(cover);
    EXPECT_EQ(music.Shown()->cover, cover);
    EXPECT_EQ(music.CoverFileOf(1), "/cover.jpg");
    music.Follow(told);
    ASSERT_EQ(runner.covers.size(), 1U) << "looked for once";
    music.Follow(untold);
    EXPECT_FALSE(music.Shown());
    EXPECT_EQ(music.CoverFileOf(1) + music.CoverFileOf(2), "");
    runner.covers[1].second(cover);
    EXPECT_EQ(music.Shown()->title, "file 2");
    auto pictured = SongNamed(3, {});
    pictured.Thumbnail = Picture(1, 1, { 0xFF445566 });
    music.Follow(pictured);
    runner.covers[1].second(cover);
    EXPECT_EQ(music.Shown()->cover.picture, pictured.Thumbnail) << "that was of the song before";
    runner.covers[2].second({});
    EXPECT_EQ(music.Shown()->cover.picture, pictured.Thumbnail);
    music.Follow(std::nullopt);
    EXPECT_FALSE(music.Shown());
}

TEST_F(MusicTest, BarsAreMadeWhereItPlaysThenAheadAndFewAreKept)
{
    music.WantBars(0);
    music.Follow(told);
    music.Follow(untold);
    music.WantBars(0);
    EXPECT_TRUE(runner.made.empty()) << "nothing is shown";
    music.Follow(told);
    music.WantBars(70'000);
    EXPECT_EQ(music.BarsAt(70'000), nullptr);
    runner.Answer();
    ASSERT_NE(music.BarsAt(61'050), nullptr);
    EXPECT_EQ((*music.BarsAt(61'050))[0], 31);
    EXPECT_EQ(music.BarsAt(59'999), nullptr);
    music.WantBars(70'000);
    music.WantBars(105'000);
    runner.Answer();
    for (const double time : { 5'000.0, 170'000.0, 199'000.0, 130'000.0, 70'000.0 }) {
        music.WantBars(time);
        if (runner.answer)
            runner.Answer(5);
    }
    EXPECT_EQ(runner.made, (std::vector{ 60, 120, 0, 180 })) << "and none behind the end";
    EXPECT_EQ(music.BarsAt(181'000), nullptr) << "the sound ends earlier than was told";
    music.LeaveBars();
    EXPECT_EQ(music.BarsAt(61'050), nullptr);
    music.WantBars(0);
    music.Follow(untold);
    EXPECT_FALSE(runner.answer) << "ended with its song";
}

TEST(Music, OfAnHourFourMinutesAreKept)
{
    ScriptedRunner runner;
    Music music(runner);
    music.Follow(SongNamed(1, { .duration = 3600, .song = "S" }));
    runner.covers[0].second({});
    for (double time = 0; time < 3'500'000; time += 30'000) {
        music.WantBars(time);
        if (runner.answer)
            runner.Answer(1800);
        EXPECT_NE(music.BarsAt(time), nullptr) << time;
    }
    int kept = 0;
    for (double time = 0; time < 3'600'000; time += 60'000)
        kept += music.BarsAt(time) != nullptr ? 1 : 0;
    EXPECT_LE(kept, 4);
}

TEST(SmoothClock, RunsBetweenTheStepsOfTheEngineWithoutGoingBackAndFollowsAJump)
{
    SmoothClock clock;
    const SmoothClock::Moment start{};
    double before = -1;
    for (int ms = 0; ms < 5000; ms += 33) {
        // Every quarter of a second, and up to 60 ms late.
        const double heard = ms / 250 * 250 - ms / 250 % 3 * 30;
        const double time = clock.At(std::max(heard, 0.0), 1, start + std::chrono::milliseconds(ms));
        EXPECT_GT(time, before);
        EXPECT_NEAR(time, ms, 100);
        before = time;
    }
    EXPECT_EQ(clock.At(60'000, 1, start + 5033ms), 60'000);
    EXPECT_NEAR(clock.At(60'000, 2, start + 5133ms), 60'200, 1);
    const double stuck = clock.At(60'000, 1, start + 9s);
    EXPECT_EQ(clock.At(60'000, 1, start + 10s), stuck) << "an engine that says nothing stands";
    EXPECT_EQ(clock.At(61'000, 0, start + 11s), 61'000);
}

TEST(BarMotion, BarsRiseAtOnceFallSlowlyComeToRestAndFillTheRoomWithSoftMusic)
{
    BarMotion motion;
    BarPicture loud{};
    loud[3] = 255;
    for (int i = 0; i < 4; ++i)
        motion.Go(&loud, 0.033);
    EXPECT_GT(motion.Heights()[3], 0.95);
    EXPECT_LE(motion.Heights()[3], 1);
    motion.Go(nullptr, 0.033);
    EXPECT_GT(motion.Heights()[3], 0.9);
    int pictures = 0;
    while (motion.Go(nullptr, 0.033))
        ++pictures;
    EXPECT_LT(pictures, 40);
    EXPECT_EQ(motion.Heights()[3], 0);
    BarPicture soft{};
    soft[5] = 128;
    for (int i = 0; i < 900; ++i)
        motion.Go(&soft, 0.033);
    EXPECT_GT(motion.Heights()[5], 0.9);
}

TEST(MusicLayout, NothingOverlapsOrLeavesTheAreaAtAnySize)
{
    for (int width = 32; width < 3900; width += 1 + width / 7) {
        for (int height = 32; height < 2200; height += 1 + height / 7) {
            const MusicLayout layout(width, height);
            const Rect area{ 0, 0, width, height };
            for (const auto& part : { layout.cover, layout.text, layout.bars }) {
                if (part.width > 0 && part.height > 0) {
                    EXPECT_EQ(SharedArea(area, part), 1LL * part.width * part.height) << width << "x" << height;
                }
            }
            EXPECT_EQ(SharedArea(layout.cover, layout.text), 0) << width << "x" << height;
            EXPECT_EQ(SharedArea(layout.text, layout.bars), 0) << width << "x" << height;
            EXPECT_EQ(SharedArea(layout.cover, layout.bars), 0) << width << "x" << height;
            if (width >= 240 && height >= 120) {
                EXPECT_TRUE(layout.cover.width >= 64 && layout.text.width >= 90) << width << "x" << height;
            }
        }
    }
}

} // namespace
} // namespace zentaro
