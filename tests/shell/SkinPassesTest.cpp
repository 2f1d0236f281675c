#include "shell/SkinPasses.h"

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
    struct Size {
        int w, h, play; // the play button's left is rounded: halves to the even neighbour
    };
    SkinButtons buttons;
    for (std::size_t i = 0; i < kButtonCount; ++i)
        buttons.states[i] = static_cast<ButtonState>(i % kButtonStateCount);
    for (const auto& [w, h, play] : { Size{ 388, 515, 160 }, Size{ 362, 320, 146 }, Size{ 20, 20, -24 } }) {
        const int p = h - 147;
        const std::vector<SkinDraw> ground{
            { SkinImage::BGCC, { 15, 56, w - 30, h - 203 } },
            { SkinImage::BGCL, { 0, 31, 15, h - 166 } },
            { SkinImage::BGCR, { w - 16, 31, 16, h - 166 } },
            { SkinImage::BGDC, { 58, p, w - 110, 147 } },
            { SkinImage::BGDL, { 0, p, 58, 147 } },
            { SkinImage::BGDR, { w - 58, p, 58, 147 } },
        };
        std::vector<SkinDraw> background{
            { SkinImage::Menu, { 15, 31, w - 15, 19 } },
            { SkinImage::MenuBar, { 15, 50, w - 15, 6 } },
            { SkinImage::MenuButton, { 18, 28, 43, 23 } },
            { SkinImage::MenuButton, { 62, 28, 43, 23 } },
            { SkinImage::MenuButton, { 106, 28, 43, 23 } },
            { SkinImage::TitleBar, { 0, 0, w, 31 } },
        };
        background.insert(background.end(), ground.begin(), ground.end());
        EXPECT_EQ(BackgroundPass(w, h), background);

        std::vector<SkinDraw> window{
            { SkinImage::Menu, { 15, 31, w - 15, 26 } },
            { SkinImage::TitleBar, { 0, 0, w, 31 } },
            { SkinImage::About, { 3, 3, 24, 24 } },
        };
        window.insert(window.end(), ground.begin(), ground.end());
        const std::pair<Button, Rect> places[] = {
            { Button::Close, { w - 30, 1, 23, 24 } },
            { Button::Maximize, { w - 53, 1, 23, 24 } },
            { Button::Minimize, { w - 76, 1, 22, 24 } },
            { Button::Play, { play, p + 60, 69, 83 } },
            { Button::Pause, { play + 69, p + 90, 35, 44 } },
            { Button::Stop, { play - 36, p + 90, 36, 47 } },
            { Button::Previous, { 42, p + 63, 29, 37 } },
            { Button::Rewind, { 71, p + 65, 30, 37 } },
            { Button::Next, { w - 66, p + 63, 28, 34 } },
            { Button::FastForward, { w - 95, p + 64, 29, 37 } },
            { Button::Snapshot, { 6, p + 32, 29, 39 } },
            { Button::FullScreen, { w - 38, p + 32, 30, 39 } },
            { Button::PlayList, { 8, h - 33, 25, 31 } },
            { Button::Dvd, { 45, h - 34, 25, 32 } },
            { Button::Open, { 85, h - 33, 26, 30 } },
            { Button::SoundOn, { w - 104, h - 32, 23, 31 } },
        };
        for (const auto& [button, rect] : places)
            window.push_back({ ButtonImage(button, buttons.StateOf(button)), rect });
        buttons.isMuted = false;
        EXPECT_EQ(PaintPass(w, h, buttons), window);
        buttons.isMuted = true;
        window.back().image = ButtonImage(Button::SoundOff, buttons.StateOf(Button::SoundOff));
        EXPECT_EQ(PaintPass(w, h, buttons), window);
    }
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
