#pragma once

#include "shell/SkinPasses.h"

#include <vector>

// Where every image belongs, written down by hand beside what the passes compute.
namespace zentaro {

struct TestSize {
    int width;
    int height;
    int playLeft; // the play button's left, by hand because of its rounding
};

inline constexpr TestSize kTestSizes[] = {
    { 388, 515, 160 },
    { 360, 320, 146 },
    { 800, 600, 366 },
    { 1920, 1080, 926 },
    { 361, 321, 146 },
    { 363, 320, 147 },
    { 100, 90, 16 },
    { 20, 20, -24 },
};

inline std::vector<SkinDraw> BackgroundTable(int w, int h)
{
    return {
        { SkinImage::Menu, { 15, 31, w - 15, 19 } },
        { SkinImage::MenuBar, { 15, 50, w - 15, 6 } },
        { SkinImage::MenuButton, { 18, 28, 43, 23 } },
        { SkinImage::MenuButton, { 62, 28, 43, 23 } },
        { SkinImage::MenuButton, { 106, 28, 43, 23 } },
        { SkinImage::TitleBar, { 0, 0, w, 31 } },
        { SkinImage::BGCC, { 15, 56, w - 30, h - 203 } },
        { SkinImage::BGCL, { 0, 31, 15, h - 166 } },
        { SkinImage::BGCR, { w - 16, 31, 16, h - 166 } },
        { SkinImage::BGDC, { 58, h - 147, w - 110, 147 } },
        { SkinImage::BGDL, { 0, h - 147, 58, 147 } },
        { SkinImage::BGDR, { w - 58, h - 147, 58, 147 } },
    };
}

/// Each button in its state; `sound` is the one of the two that shows.
inline std::vector<SkinDraw> PaintTable(const TestSize& size, const SkinButtons& buttons, Button sound)
{
    const int w = size.width;
    const int h = size.height;
    const int p = h - 147;
    const int x = size.playLeft;
    std::vector<SkinDraw> table{
        { SkinImage::Menu, { 15, 31, w - 15, 26 } },
        { SkinImage::TitleBar, { 0, 0, w, 31 } },
        { SkinImage::About, { 3, 3, 24, 24 } },
        { SkinImage::BGCC, { 15, 56, w - 30, h - 203 } },
        { SkinImage::BGCL, { 0, 31, 15, h - 166 } },
        { SkinImage::BGCR, { w - 16, 31, 16, h - 166 } },
        { SkinImage::BGDC, { 58, p, w - 110, 147 } },
        { SkinImage::BGDL, { 0, p, 58, 147 } },
        { SkinImage::BGDR, { w - 58, p, 58, 147 } },
    };
    const auto add = [&](Button button, const Rect& rect) {
        table.push_back({ ButtonImage(button, buttons.StateOf(button)), rect });
    };
    add(Button::Close, { w - 30, 1, 23, 24 });
    add(Button::Maximize, { w - 53, 1, 23, 24 });
    add(Button::Minimize, { w - 76, 1, 22, 24 });
    add(Button::Play, { x, p + 60, 69, 83 });
    add(Button::Pause, { x + 69, p + 90, 35, 44 });
    add(Button::Stop, { x - 36, p + 90, 36, 47 });
    add(Button::Previous, { 42, p + 63, 29, 37 });
    add(Button::Rewind, { 71, p + 65, 30, 37 });
    add(Button::Next, { w - 66, p + 63, 28, 34 });
    add(Button::FastForward, { w - 95, p + 64, 29, 37 });
    add(Button::Snapshot, { 6, p + 32, 29, 39 });
    add(Button::FullScreen, { w - 38, p + 32, 30, 39 });
    add(Button::PlayList, { 8, h - 33, 25, 31 });
    add(Button::Dvd, { 45, h - 34, 25, 32 });
    add(Button::Open, { 85, h - 33, 26, 30 });
    add(sound, { w - 104, h - 32, 23, 31 });
    return table;
}

/// Every state on some button.
inline SkinButtons MixedButtons()
{
    SkinButtons buttons;
    for (std::size_t i = 0; i < kButtonCount; ++i)
        buttons.states[i] = static_cast<ButtonState>(i % kButtonStateCount);
    return buttons;
}

} // namespace zentaro
