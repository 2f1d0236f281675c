#pragma once

#include "base/Geometry.h"
#include "shell/WindowLayout.h"

#include <array>
#include <string>
#include <vector>

namespace zentaro {

inline constexpr std::size_t kButtonCount = 18;

/// In the order of the image folders.
enum class ButtonState { Normal, Over, Press, Disabled };
inline constexpr std::size_t kButtonStateCount = 4;

/// The skin's image objects, without those of the buttons, which follow from `FirstButton` on.
enum class SkinImage {
    TLCorner,
    TRCorner,
    BLCorner,
    BRCorner,
    HLine,
    VLine,
    TabButton,
    PlayList,
    BGDC,
    BGDL,
    BGDR,
    BGBLCorner,
    BGBRCorner,
    BGBCorner,
    BGCL,
    BGCC,
    BGCR,
    BGCd,
    TitleBar,
    About,
    Menu,
    MenuBar,
    MenuButton,
    AboutBox, // the same picture as `About`, an object of its own
    FirstButton,
};
inline constexpr std::size_t kSkinImageCount =
    static_cast<std::size_t>(SkinImage::FirstButton) + kButtonCount * kButtonStateCount;

constexpr SkinImage ButtonImage(Button button, ButtonState state)
{
    return static_cast<SkinImage>(static_cast<std::size_t>(SkinImage::FirstButton)
        + static_cast<std::size_t>(button) * kButtonStateCount + static_cast<std::size_t>(state));
}

/// The button that an image from `FirstButton` on belongs to.
constexpr Button ButtonOf(SkinImage image)
{
    return static_cast<Button>(
        (static_cast<std::size_t>(image) - static_cast<std::size_t>(SkinImage::FirstButton)) / kButtonStateCount);
}

/// An image and its file, below the skin's folder.
struct SkinFile {
    SkinImage image;
    std::string name;
};

/// Every image once, in the order in which they are loaded.
std::vector<SkinFile> SkinLoadOrder();

/// A button on its way from another state: how much of the present one shows already, 0 to 1.
struct ButtonFade {
    ButtonState from = ButtonState::Normal;
    double share = 1;
};

/// What the paint pass draws the buttons from.
struct SkinButtons {
    std::array<ButtonState, kButtonCount> states{};
    std::array<ButtonFade, kButtonCount> fades{};
    bool isMuted = false;

    ButtonState& StateOf(Button button) { return states[static_cast<std::size_t>(button)]; }
    ButtonState StateOf(Button button) const { return states[static_cast<std::size_t>(button)]; }
    ButtonFade& FadeOf(Button button) { return fades[static_cast<std::size_t>(button)]; }
    const ButtonFade& FadeOf(Button button) const { return fades[static_cast<std::size_t>(button)]; }
};

/// An image and the rectangle (px) that it is stretched into. Sizes below 1 draw nothing.
struct SkinDraw {
    SkinImage image;
    Rect rect;
    bool operator==(const SkinDraw&) const = default;
};

/// The still background of a client area of that size, from the first image to the last: later ones cover earlier ones.
std::vector<SkinDraw> BackgroundPass(int width, int height);

/// The whole window with its buttons, in the same way.
std::vector<SkinDraw> PaintPass(int width, int height, const SkinButtons& buttons);

} // namespace zentaro
