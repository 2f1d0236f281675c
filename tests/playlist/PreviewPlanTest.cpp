#include "playlist/PreviewPlan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

namespace zentaro {
namespace {

constexpr double kHour = 3'600'000;

PreviewBytes Some(const std::string& name)
{
    return std::make_shared<const std::string>(name);
}

TEST(PreviewPlan, GoesFromTheKeyFrameUnderThePointerToTheExactPictureAndTheRestOfTheFilm)
{
    PreviewPlan plan(2 * kHour);
    const PreviewWish passing{ kHour / 2 };
    const auto first = plan.Next(passing);
    ASSERT_TRUE(first);
    EXPECT_FALSE(first->isExact);
    EXPECT_LE(std::abs(first->time - kHour / 2), 30'000);
    EXPECT_EQ(plan.At(passing), nullptr);
    plan.Made(*first, Some("key"));
    EXPECT_EQ(*plan.At(passing), "key");
    EXPECT_FALSE(plan.Next(passing)) << "a passing pointer on a spared drive asks for nothing more";

    const PreviewWish resting{ kHour / 2, true, true };
    const auto exact = plan.Next(resting);
    ASSERT_TRUE(exact && exact->isExact);
    EXPECT_TRUE(plan.IsWanted(*exact, resting));
    EXPECT_FALSE(plan.IsWanted(*exact, { kHour }));
    plan.Made(*exact, Some("exact"));
    EXPECT_EQ(*plan.At(resting), "exact");
    EXPECT_EQ(plan.At({ kHour }), nullptr) << "another part of the film";

    std::size_t made = 1;
    double farthest = 0;
    while (const auto next = plan.Next(resting)) {
        ASSERT_FALSE(next->isExact);
        if (++made == 20) {
            EXPECT_GT(farthest, kHour) << "few pictures of all before many of a part";
        }
        farthest = std::max(farthest, std::abs(next->time - resting.time));
        plan.Made(*next, Some("more"));
        ASSERT_LE(made, plan.Places().size());
    }
    EXPECT_EQ(made, plan.Places().size());
    EXPECT_LE(plan.Places().size(), 200U);
}

TEST(PreviewPlan, KeepsItsPlacesWhileTheLengthIsToldBetter)
{
    PreviewPlan plan(kHour), other(kHour + 40);
    EXPECT_EQ(plan.Places()[70], other.Places()[70]);
    const auto before = plan.Places();
    plan.SetLength(2 * kHour);
    EXPECT_EQ(plan.Places()[70], before[70]);
    EXPECT_GT(plan.Places().back().time, before.back().time);
    EXPECT_EQ(PreviewPlan(300).Places().size(), 1U);
}

TEST(PreviewPlan, LeavesAFilmAloneThatGivesNoPicturesButNotAGoodOneWithAGap)
{
    const PreviewWish wish{ 0, true, true };
    PreviewPlan barren(kHour), good(kHour);
    for (int i = 0; i < 3; ++i)
        barren.Made(barren.Next(wish).value(), nullptr);
    EXPECT_FALSE(barren.Next(wish));
    good.Made(good.Next(wish).value(), Some("first"));
    for (int i = 0; i < 10; ++i)
        good.Made(good.Next(wish).value(), nullptr);
    EXPECT_TRUE(good.Next(wish));
    EXPECT_EQ(*good.At(wish), "first");
}

TEST(PreviewPlan, OfAChangedFileForgetsGapsAndWhatOnePictureStoodForSeveralPlaces)
{
    PreviewPlan plan(kHour);
    const auto places = plan.Places();
    const char* const pictures[] = { "a", "b", "b", "b", "", "c" };
    for (std::size_t i = 0; i < std::size(pictures); ++i)
        plan.Made(places[i], *pictures[i] ? Some(pictures[i]) : nullptr);
    EXPECT_EQ(plan.Missing().size(), places.size() - 6);
    plan.LookAgain();
    const auto missing = plan.Missing();
    EXPECT_EQ(missing.size(), places.size() - 3);
    EXPECT_EQ(missing[0], places[2]);
    EXPECT_EQ(*plan.At({ places[1].time }), "b");
}

TEST(PreviewPlan, OfAThumbnailOnlyItsPlacesCount)
{
    PreviewPlan plan(kHour);
    const PreviewWish wish{ kHour / 2, true, true, 16 };
    int made = 0;
    while (const auto next = plan.Next(wish)) {
        ASSERT_FALSE(next->isExact);
        plan.Made(*next, Some("picture"));
        ++made;
    }
    EXPECT_GE(made, 16);
    EXPECT_LE(made, 20);
    for (double time = 0; time < kHour; time += kHour / 16)
        EXPECT_NE(plan.At({ time, false, false, 16 }), nullptr) << time;
}

} // namespace
} // namespace zentaro
