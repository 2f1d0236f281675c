#include "playback/DiscParts.h"

#include <gmock/gmock.h>

using namespace zentaro;
using testing::ElementsAre;

TEST(DiscParts, titles_are_listed_by_name_or_number)
{
    EXPECT_THAT(TitleCaptions({ { "DVD Menu" }, { "", 5'400'000 }, { "", 499 } }),
        ElementsAre("DVD Menu", "Title 1 (01:30:00)", "Title 2"));
}

TEST(DiscParts, chapters_are_told_and_stepped_through_by_their_starts)
{
    const std::vector<DiscPart> chapters{ { "Dawn" }, { "", 0, 60'000 }, { "Dusk", 0, 3'600'000 } };
    EXPECT_THAT(ChapterCaptions(chapters), ElementsAre("00:00:00  Dawn", "00:01:00  Chapter 1", "01:00:00  Dusk"));
    EXPECT_EQ(ChapterAt(chapters, 59'999), 0);
    EXPECT_EQ(ChapterAt(chapters, 60'000), 1);
    EXPECT_EQ(ChapterNear(chapters, 61'000, 1000), 1);
    EXPECT_EQ(ChapterNear(chapters, 61'001, 1000), -1);
    EXPECT_EQ(ChapterAfterStep(chapters, 0, 70'000, 1), 2);
    EXPECT_EQ(ChapterAfterStep(chapters, 0, 3'700'000, 1), std::nullopt);
    EXPECT_EQ(ChapterAfterStep(chapters, 0, 63'001, -1), 1);
    EXPECT_EQ(ChapterAfterStep(chapters, 0, 63'000, -1), 0);
    EXPECT_EQ(ChapterAfterStep(chapters, 0, 1000, -1), std::nullopt);

    const std::vector<DiscPart> untimed{ { "" }, { "" } };
    EXPECT_THAT(ChapterCaptions(untimed), ElementsAre("Chapter 1", "Chapter 2"));
    EXPECT_EQ(ChapterAt(untimed, 5), -1);
    EXPECT_EQ(ChapterNear(untimed, 0, 5), -1);
    EXPECT_EQ(ChapterAfterStep(untimed, 1, 99'000, -1), 0);
}
