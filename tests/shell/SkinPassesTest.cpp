#include "tests/shell/SkinTable.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace zentaro {

void PrintTo(const SkinDraw& draw, std::ostream* out)
{
    const auto& rect = draw.rect;
    *out << static_cast<int>(draw.image) << " at " << rect.left << ',' << rect.top << ' ' << rect.width << 'x'
         << rect.height;
}

namespace {

TEST(SkinPasses, draw_every_image_in_its_place_and_order_at_every_size)
{
    auto buttons = MixedButtons();
    for (const auto& size : kTestSizes) {
        SkinRects rects;
        EXPECT_EQ(BackgroundPass(size.width, size.height, rects), BackgroundTable(size.width, size.height));
        EXPECT_EQ(PaintPass(size.width, size.height, buttons, rects), PaintTable(size, buttons, Button::SoundOn));
    }
}

TEST(SkinPasses, muting_swaps_the_sound_button_only_and_its_place_stays)
{
    SkinRects rects;
    auto buttons = MixedButtons();
    const auto loud = PaintPass(388, 515, buttons, rects);
    const auto place = rects.Of(Button::SoundOn);
    buttons.isMuted = true;
    EXPECT_EQ(PaintPass(388, 515, buttons, rects), PaintTable(kTestSizes[0], buttons, Button::SoundOff));
    EXPECT_EQ(rects.Of(Button::SoundOff), place);
    EXPECT_EQ(loud.back().rect, place);
}

TEST(SkinPasses, keep_what_takes_the_pointer_where_they_drew_it_last)
{
    SkinRects rects;
    PaintPass(388, 515, {}, rects);
    PaintPass(800, 600, {}, rects);
    EXPECT_EQ(rects.Of(Button::Play), (Rect{ 366, 513, 69, 83 }));
    EXPECT_EQ(rects.Of(Button::Close), (Rect{ 770, 1, 23, 24 }));
    EXPECT_EQ(rects.Of(Button::PushButton), Rect());
    EXPECT_EQ(rects.titleBar, Rect());
    BackgroundPass(800, 600, rects);
    EXPECT_EQ(rects.titleBar, (Rect{ 0, 0, 800, 31 }));
    EXPECT_EQ(rects.menuButtons[2], (Rect{ 106, 28, 43, 23 }));
}

TEST(SkinLoadOrder, holds_every_image_once_in_the_right_order)
{
    const auto files = SkinLoadOrder();
    ASSERT_EQ(files.size(), kSkinImageCount);
    std::set<SkinImage> images;
    for (const auto& file : files)
        images.insert(file.image);
    EXPECT_EQ(images.size(), kSkinImageCount);

    const std::map<std::size_t, const char*> places{ { 0, "TLCorner.png" }, { 3, "BRCorner.png" }, { 4, "HLine.png" },
        { 7, "playlist.png" }, { 8, "BGDC.jpg" }, { 11, "BGBLCorner.jpg" }, { 13, "BGBCorner.jpg" }, { 14, "BGCL.jpg" },
        { 17, "BGCd.jpg" }, { 18, "TitleBar.jpg" }, { 19, "Normal/Minimize.png" }, { 22, "Disabel/Minimize.png" },
        { 24, "Over/Maxmize.png" }, { 30, "Disabel/Close.png" }, { 31, "About.png" }, { 34, "MenuButton.png" },
        { 35, "Normal/Play.png" }, { 38, "Normal/ff.png" }, { 49, "Over/Play.png" }, { 90, "Disabel/SoundOFF.png" },
        { 91, "Normal/Button.png" }, { 94, "Disabel/Button.png" }, { 95, "About.png" } };
    for (const auto& [place, name] : places)
        EXPECT_EQ(files[place].name, name);
    EXPECT_EQ(files[38].image, ButtonImage(Button::FastForward, ButtonState::Normal));
}

} // namespace
} // namespace zentaro
