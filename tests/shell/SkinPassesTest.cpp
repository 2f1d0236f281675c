#include "shell/SkinPasses.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

namespace zentaro {
namespace {

/// The files of all images.
std::map<SkinImage, std::string> Names()
{
    std::map<SkinImage, std::string> names;
    for (const auto& file : SkinLoadOrder())
        names[file.image] = file.name;
    EXPECT_EQ(SkinLoadOrder().size(), kSkinImageCount);
    EXPECT_EQ(names.size(), kSkinImageCount);
    return names;
}

TEST(SkinPasses, draw_every_image_in_its_place_and_order)
{
    const auto drawn = [names = Names()](const std::vector<SkinDraw>& pass) {
        std::ostringstream text;
        for (const auto& [image, rect] : pass)
            text << names.at(image) << ' ' << rect.left << ',' << rect.top << ' ' << rect.width << 'x' << rect.height
                 << '\n';
        return text.str();
    };
    const std::string ground = "BGCC.jpg 15,56 358x312\nBGCL.jpg 0,31 15x349\nBGCR.jpg 372,31 16x349\n"
                               "BGDC.jpg 58,368 278x147\nBGDL.jpg 0,368 58x147\nBGDR.jpg 330,368 58x147\n";
    EXPECT_EQ(drawn(BackgroundPass(388, 515)),
        "menu.jpg 15,31 373x19\nMenubar.png 15,50 373x6\nMenuButton.png 18,28 43x23\nMenuButton.png 62,28 43x23\n"
        "MenuButton.png 106,28 43x23\nTitleBar.jpg 0,0 388x31\n"
            + ground);
    SkinButtons buttons;
    for (std::size_t i = 0; i < kButtonCount; ++i)
        buttons.states[i] = static_cast<ButtonState>(i % kButtonStateCount);
    const std::string window = "menu.jpg 15,31 373x26\nTitleBar.jpg 0,0 388x31\nAbout.png 3,3 24x24\n" + ground
        + "Normal/Close.png 358,1 23x24\nDisabel/Maxmize.png 335,1 23x24\nPress/Minimize.png 312,1 22x24\n"
          "Normal/Play.png 160,428 69x83\nOver/Pause.png 229,458 35x44\nPress/Stop.png 124,458 36x47\n"
          "Press/Previous.png 42,431 29x37\nNormal/Rewind.png 71,433 30x37\nOver/Next.png 322,431 28x34\n"
          "Disabel/ff.png 293,432 29x37\nNormal/SnapShoot.png 6,400 29x39\nDisabel/FullScreen.png 350,400 30x39\n"
          "Over/PlayList.png 8,482 25x31\nPress/dvd.png 45,481 25x32\nDisabel/Open.png 85,482 26x30\n";
    buttons.isMuted = false;
    EXPECT_EQ(drawn(PaintPass(388, 515, buttons)), window + "Normal/SoundOn.png 284,483 23x31\n");
    buttons.isMuted = true;
    EXPECT_EQ(drawn(PaintPass(388, 515, buttons)), window + "Over/SoundOFF.png 284,483 23x31\n");
    // Halves go to the even neighbour.
    EXPECT_EQ(WindowLayout(20, 20).ButtonRect(Button::Play).left, -24);
    EXPECT_EQ(WindowLayout(362, 320).ButtonRect(Button::Play).left, 146);
}

TEST(SkinPasses, of_a_buttons_four_pictures_none_is_anothers)
{
    auto names = Names();
    for (std::size_t button = 0; button < kButtonCount; ++button) {
        const auto nameIn = [&](ButtonState state) { return names[ButtonImage(static_cast<Button>(button), state)]; };
        const auto name = nameIn(ButtonState::Normal).substr(7);
        EXPECT_EQ(nameIn(ButtonState::Over) + nameIn(ButtonState::Press) + nameIn(ButtonState::Disabled),
            "Over/" + name + "Press/" + name + "Disabel/" + name);
    }
}

} // namespace
} // namespace zentaro
