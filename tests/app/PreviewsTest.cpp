#include "app/Previews.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace zentaro {
namespace {

struct ScriptedRunner : PreviewRunner {
    void Recall(
        const std::string&, const std::vector<PreviewPlace>&, std::function<void(Made, const Stamp&)> done) override
    {
        done(known, stamp);
    }
    void Make(const std::string& path, const PreviewPlace& place, std::function<void(PreviewBytes)> done) override
    {
        EXPECT_FALSE(answer) << "two at a time";
        asked.push_back(path);
        at = place;
        answer = std::move(done);
    }
    void Cancel() override
    {
        answer = nullptr;
        ++cancels;
    }
    void Answer(const std::string& picture)
    {
        const auto done = std::exchange(answer, nullptr);
        ASSERT_TRUE(done);
        done(picture.empty() ? nullptr : std::make_shared<const std::string>(picture));
    }

    Made known;
    Stamp stamp = FileStamp{ 1, 1 };
    std::vector<std::string> asked;
    PreviewPlace at;
    std::function<void(PreviewBytes)> answer;
    int cancels = 0;
};

struct PreviewsTest : testing::Test {
    void Rest()
    {
        for (const auto& work : std::exchange(timers, {}))
            work();
    }

    ScriptedRunner runner;
    bool isSpared = true;
    std::vector<std::function<void()>> timers;
    Previews previews{ runner, [this](const std::string&) { return isSpared; },
        [this](auto, auto work) { timers.push_back(std::move(work)); } };
    const Previews::Film film{ "/film.mkv", 3'600'000 }, other{ "/other.mkv", 60'000 };
};

TEST_F(PreviewsTest, APassingPointerLetsAKeyFrameComeAndARestingOneGetsTheExactPicture)
{
    previews.PointAt(film, 1'000'000);
    previews.PointAt(film, 1'500'000);
    EXPECT_EQ(runner.cancels, 0);
    runner.Answer("key frame");
    ASSERT_TRUE(runner.answer) << "that of the place where the pointer is by now";
    runner.Answer("key frame here");
    EXPECT_EQ(*previews.Picture(), "key frame here");
    EXPECT_FALSE(runner.answer);
    Rest();
    ASSERT_TRUE(runner.answer && runner.at.isExact);
    previews.PointAt(film, 1'501'000);
    EXPECT_TRUE(runner.answer) << "it is the same picture";
    previews.PointAt(film, 1'600'000);
    EXPECT_EQ(runner.cancels, 1);
    EXPECT_TRUE(runner.answer && !runner.at.isExact);
}

TEST_F(PreviewsTest, OnAThumbnailNothingIsMadeUntilThePointerRestsAndThenItsPlacesAlone)
{
    isSpared = false;
    previews.PointAt(film, 100'000, 16);
    EXPECT_FALSE(runner.answer) << "the pointer may be on its way over many rows";
    Rest();
    runner.Answer("first");
    previews.PointAt(film, 110'000, 16);
    int made = 1;
    for (; runner.answer; ++made)
        runner.Answer("next");
    EXPECT_GE(made, 16);
    EXPECT_LE(made, 20);
    previews.PointAt(film, 3'000'000, 16);
    EXPECT_NE(previews.Picture(), nullptr);
    previews.PointAt(other, 0, 16);
    EXPECT_FALSE(runner.answer) << "the next row";
}

TEST_F(PreviewsTest, WhatNobodyPointsAtIsEndedAtOnceAndNothingFollows)
{
    isSpared = false;
    previews.PointAt(film, 1000);
    previews.Leave();
    EXPECT_FALSE(runner.answer);
    EXPECT_EQ(previews.Picture(), nullptr);
    previews.PointAt(film, 1000);
    runner.Answer("picture");
    ASSERT_TRUE(runner.answer) << "the rest of the film";
    previews.PointAt(other, 1000);
    EXPECT_EQ(runner.asked.back(), "/other.mkv");
    EXPECT_EQ(previews.Picture(), nullptr) << "of another film";
    previews.PointAt({ "/dvd", 0 }, 1000);
    EXPECT_FALSE(runner.answer);
    EXPECT_FALSE(previews.MayCome());
    previews.PointAt(film, 1000);
    EXPECT_EQ(*previews.Picture(), "picture") << "it is still known";
}

TEST_F(PreviewsTest, OfManyFilmsOnlyTheLastOnesAreKeptAndWhatComesLateDoesNoHarm)
{
    for (int i = 0; i < 40; ++i) {
        previews.PointAt({ "/film" + std::to_string(i), 60'000 }, 1000);
        runner.Answer("picture");
        Rest();
        runner.Answer("");
    }
    previews.PointAt({ "/film39", 60'000 }, 1000);
    EXPECT_NE(previews.Picture(), nullptr);
    previews.PointAt({ "/film0", 60'000 }, 1000);
    EXPECT_EQ(previews.Picture(), nullptr);
}

TEST_F(PreviewsTest, AFilmThatGrowsIsLookedAtAgainWhereItGaveNothingWhenTheHandComesToRest)
{
    previews.PointAt(film, 3'000'000);
    runner.Answer("");
    Rest();
    runner.Answer("");
    EXPECT_FALSE(runner.answer);
    previews.PointAt(film, 3'000'000);
    Rest();
    EXPECT_FALSE(runner.answer) << "it is what it was";
    runner.stamp->size = 2;
    previews.PointAt(film, 3'000'000);
    EXPECT_FALSE(runner.answer);
    Rest();
    ASSERT_TRUE(runner.answer);
    runner.Answer("picture");
    EXPECT_EQ(*previews.Picture(), "picture");
}

} // namespace
} // namespace zentaro
