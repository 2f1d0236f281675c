#include "inspect/Thumbnail.h"

#include <gtest/gtest.h>

using namespace zentaro;

TEST(Thumbnail, a_picture_is_fitted_into_the_box_with_even_sides_a_tenth_into_the_film)
{
    EXPECT_EQ(FitScale(720, 576, 90, 72), 0.125);
    EXPECT_EQ(FitScale(0, 576, 90, 72), 1);
    EXPECT_EQ(ThumbnailSizeOf(720, 576, false), (ThumbnailSize{ 90, 72 }));
    EXPECT_EQ(ThumbnailSizeOf(1280, 720, false), (ThumbnailSize{ 90, 52 }));
    EXPECT_EQ(ThumbnailSizeOf(128, 72, true), (ThumbnailSize{ 40, 72 }));
    EXPECT_EQ(ThumbnailSizeOf(4000, 4, false), (ThumbnailSize{ 90, 2 }));
    EXPECT_EQ(ThumbnailTime(1.9F), 1.0F); // too short for a tenth
    EXPECT_EQ(ThumbnailTime(2.0F), 0.2F);
    EXPECT_EQ(ThumbnailTime(100), 10.0F);
}

TEST(Thumbnail, each_tool_gets_its_own_order_of_arguments)
{
    const auto text = [](bool isClassic, const ThumbnailRequest& request) {
        return ThumbnailCommand("p", isClassic, request, "/t/100%d.jpg").text;
    };
    EXPECT_EQ(text(true, { "/a b.avi", { 90, 72 }, 0.2F, {} }),
        "-vframes 1 -ss 0.2 -i \"/a b.avi\" -sws_flags fast_bilinear -an -analyzeduration 5M -s 90x72 -f image2 "
        "\"/t/100%d.jpg\"");
    EXPECT_EQ(text(true, { "/a.avi", { 90, 72 }, {}, {} }),
        "-y -i \"/a.avi\" -an -vframes 1 -s 90x72 -f image2 \"/t/100%d.jpg\"");
    EXPECT_EQ(text(false, { "/c:d\".mkv", { 90, 52 }, 12.5F, 3 }),
        "-y -nostdin -skip_frame noref -skip_loop_filter all -ss 12.5 -i \"file:/c:d\".mkv\" -map 0:3 -an -sn -dn "
        "-frames:v 1 -s 90x52 -f image2 -update 1 \"/t/100%d.jpg\"");
    EXPECT_EQ(text(false, { "/a", { 2, 2 }, {}, {} }),
        "-y -nostdin -i \"file:/a\" -an -sn -dn -frames:v 1 -s 2x2 -f image2 -update 1 \"/t/100%d.jpg\"");
}
