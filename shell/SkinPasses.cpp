#include "shell/SkinPasses.h"

#include <span>

namespace zentaro {

namespace {

constexpr std::array kAllStates{
    ButtonState::Normal,
    ButtonState::Over,
    ButtonState::Press,
    ButtonState::Disabled,
};
constexpr std::array kStateFolders{ "Normal", "Over", "Press", "Disabel" };

// By the buttons' index; the odd spellings are the names of the files.
constexpr std::array<const char*, kButtonCount> kButtonFiles{
    "Play.png",
    "Pause.png",
    "Stop.png",
    "ff.png",
    "Rewind.png",
    "Next.png",
    "Previous.png",
    "FullScreen.png",
    "SnapShoot.png",
    "PlayList.png",
    "dvd.png",
    "Open.png",
    "SoundOn.png",
    "SoundOFF.png",
    "Minimize.png",
    "Maxmize.png",
    "Close.png",
    "Button.png",
};

struct NamedImage {
    SkinImage image;
    const char* name;
};

constexpr NamedImage kFrameFiles[] = {
    { SkinImage::TLCorner, "TLCorner.png" },
    { SkinImage::TRCorner, "TRCorner.png" },
    { SkinImage::BLCorner, "BLCorner.png" },
    { SkinImage::BRCorner, "BRCorner.png" },
    { SkinImage::HLine, "HLine.png" },
    { SkinImage::VLine, "VLine.png" },
    { SkinImage::TabButton, "TabButton.png" },
    { SkinImage::PlayList, "playlist.png" },
    { SkinImage::BGDC, "BGDC.jpg" },
    { SkinImage::BGDL, "BGDL.jpg" },
    { SkinImage::BGDR, "BGDR.jpg" },
    { SkinImage::BGBLCorner, "BGBLCorner.jpg" },
    { SkinImage::BGBRCorner, "BGBRCorner.jpg" },
    { SkinImage::BGBCorner, "BGBCorner.jpg" },
    { SkinImage::BGCL, "BGCL.jpg" },
    { SkinImage::BGCC, "BGCC.jpg" },
    { SkinImage::BGCR, "BGCR.jpg" },
    { SkinImage::BGCd, "BGCd.jpg" },
    { SkinImage::TitleBar, "TitleBar.jpg" },
};

constexpr NamedImage kMenuFiles[] = {
    { SkinImage::About, "About.png" },
    { SkinImage::Menu, "menu.jpg" },
    { SkinImage::MenuBar, "Menubar.png" },
    { SkinImage::MenuButton, "MenuButton.png" },
};

constexpr std::array kTitleButtons{ Button::Minimize, Button::Maximize, Button::Close };

// From the first of the transport to the last of the tools, as they are numbered.
constexpr Button kLastTool = Button::SoundOff;

constexpr std::array kPaintedButtons{
    Button::Close,
    Button::Maximize,
    Button::Minimize,
    Button::Play,
    Button::Pause,
    Button::Stop,
    Button::Previous,
    Button::Rewind,
    Button::Next,
    Button::FastForward,
    Button::Snapshot,
    Button::FullScreen,
    Button::PlayList,
    Button::Dvd,
    Button::Open,
};

void AppendFiles(std::vector<SkinFile>& files, std::span<const NamedImage> named)
{
    for (const auto& [image, name] : named)
        files.push_back({ image, name });
}

void AppendButton(std::vector<SkinFile>& files, Button button, ButtonState state)
{
    const auto folder = std::string(kStateFolders[static_cast<std::size_t>(state)]);
    files.push_back({ ButtonImage(button, state), folder + "/" + kButtonFiles[static_cast<std::size_t>(button)] });
}

void AppendStates(std::vector<SkinFile>& files, Button button)
{
    for (const auto state : kAllStates)
        AppendButton(files, button, state);
}

/// The middle band between the two strips at the window's sides.
void AppendBand(std::vector<SkinDraw>& draws, int width, int height)
{
    draws.push_back({ SkinImage::BGCC, { 15, 56, width - 30, height - 203 } });
    draws.push_back({ SkinImage::BGCL, { 0, 31, 15, height - 166 } });
    draws.push_back({ SkinImage::BGCR, { width - 16, 31, 16, height - 166 } });
}

void AppendPanel(std::vector<SkinDraw>& draws, const Rect& panel)
{
    draws.push_back({ SkinImage::BGDC, { 58, panel.top, panel.width - 110, panel.height } });
    draws.push_back({ SkinImage::BGDL, { 0, panel.top, 58, panel.height } });
    draws.push_back({ SkinImage::BGDR, { panel.width - 58, panel.top, 58, panel.height } });
}

} // namespace

std::vector<SkinFile> SkinLoadOrder()
{
    std::vector<SkinFile> files;
    files.reserve(kSkinImageCount);
    AppendFiles(files, kFrameFiles);
    for (const auto button : kTitleButtons)
        AppendStates(files, button);
    AppendFiles(files, kMenuFiles);
    for (const auto state : kAllStates) {
        for (int button = 0; button <= static_cast<int>(kLastTool); ++button)
            AppendButton(files, static_cast<Button>(button), state);
    }
    AppendStates(files, Button::PushButton);
    files.push_back({ SkinImage::AboutBox, "About.png" });
    return files;
}

std::vector<SkinDraw> BackgroundPass(int width, int height)
{
    const WindowLayout layout(width, height);
    std::vector<SkinDraw> draws;
    draws.push_back({ SkinImage::Menu, { 15, 31, width - 15, 19 } });
    draws.push_back({ SkinImage::MenuBar, { 15, 50, width - 15, 6 } });
    for (const int left : { 18, 62, 106 })
        draws.push_back({ SkinImage::MenuButton, { left, 28, 43, 23 } });
    draws.push_back({ SkinImage::TitleBar, layout.TitleBar() });
    AppendBand(draws, width, height);
    AppendPanel(draws, layout.Panel());
    return draws;
}

std::vector<SkinDraw> PaintPass(int width, int height, const SkinButtons& buttons)
{
    const WindowLayout layout(width, height);
    std::vector<SkinDraw> draws;
    draws.push_back({ SkinImage::Menu, layout.MenuStrip() });
    draws.push_back({ SkinImage::TitleBar, layout.TitleBar() });
    draws.push_back({ SkinImage::About, layout.Icon() });
    AppendBand(draws, width, height);
    AppendPanel(draws, layout.Panel());

    const auto draw = [&](Button button) {
        draws.push_back({ ButtonImage(button, buttons.StateOf(button)), layout.ButtonRect(button) });
    };
    for (const auto button : kPaintedButtons)
        draw(button);
    draw(buttons.isMuted ? Button::SoundOff : Button::SoundOn);
    return draws;
}

} // namespace zentaro
