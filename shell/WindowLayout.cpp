#include "shell/WindowLayout.h"

#include "base/Numbers.h"

#include <algorithm>

namespace zentaro {

namespace {

// What must show of the title bar for a hand to find it.
constexpr int kGripWidth = 64;
constexpr int kGripHeight = 16;

} // namespace

Rect WindowLayout::ButtonRect(Button button) const
{
    const int top = PanelTop();
    // Halves go to the even neighbour.
    const int play = RoundHalfEven((m_width - 69) / 2.0);
    switch (button) {
    case Button::Play:
        return { play, top + 60, 69, 83 };
    case Button::Pause:
        return { play + 69, top + 90, 35, 44 };
    case Button::Stop:
        return { play - 36, top + 90, 36, 47 };
    case Button::FastForward:
        return { m_width - 95, top + 64, 29, 37 };
    case Button::Rewind:
        return { 71, top + 65, 30, 37 };
    case Button::Next:
        return { m_width - 66, top + 63, 28, 34 };
    case Button::Previous:
        return { 42, top + 63, 29, 37 };
    case Button::FullScreen:
        return { m_width - 38, top + 32, 30, 39 };
    case Button::Snapshot:
        return { 6, top + 32, 29, 39 };
    case Button::PlayList:
        return { 8, m_height - 33, 25, 31 };
    case Button::Dvd:
        return { 45, m_height - 34, 25, 32 };
    case Button::Open:
        return { 85, m_height - 33, 26, 30 };
    case Button::SoundOn:
    case Button::SoundOff:
        return { m_width - 104, m_height - 32, 23, 31 };
    case Button::Minimize:
        return { m_width - 76, 1, 22, 24 };
    case Button::Maximize:
        return { m_width - 53, 1, 23, 24 };
    case Button::Close:
        return { m_width - 30, 1, 23, 24 };
    case Button::PushButton:
        break;
    }
    return {};
}

WindowLayout::Edges WindowLayout::EdgesAt(int x, int y) const
{
    if (!Rect{ 0, 0, m_width, m_height }.Contains(x, y))
        return {};
    // A corner reaches further along its edges than the edge is wide, or nobody would meet it.
    const int corner = 2 * kResizeBorder;
    Edges edges{ x < kResizeBorder, y < kResizeBorder, x >= m_width - kResizeBorder, y >= m_height - kResizeBorder };
    if (edges.left || edges.right) {
        edges.top = y < corner;
        edges.bottom = y >= m_height - corner;
    }
    if (edges.top || edges.bottom) {
        edges.left = x < corner;
        edges.right = x >= m_width - corner;
    }
    return edges;
}

Rect BarLayout::ButtonRect(Button button) const
{
    const auto at = [](int left, int width) { return Rect{ left, 0, width, kHeight }; };
    // Neighbours of the window stay neighbours: their plates fit together.
    switch (button) {
    case Button::Previous:
        return at(16, 29);
    case Button::Rewind:
        return at(45, 30);
    case Button::Stop:
        return at(87, 36);
    case Button::Play:
        return at(123, 43);
    case Button::Pause:
        return at(166, 35);
    case Button::FastForward:
        return at(213, 29);
    case Button::Next:
        return at(242, 28);
    case Button::SoundOn:
    case Button::SoundOff:
        return at(m_width - 222, 23);
    case Button::FullScreen:
        return at(m_width - 46, 30);
    default:
        return {};
    }
}

Rect BarLayout::PictureRect(Button button, double middle) const
{
    // As large as in the window, but for the round one, which would be higher than the bar.
    const auto place = ButtonRect(button);
    const auto inWindow = WindowLayout(m_width, WindowLayout::kFirstHeight).ButtonRect(button);
    if (place.width <= 0)
        return {};
    const int height = RoundHalfEven(static_cast<double>(inWindow.height) * place.width / inWindow.width);
    return { place.left, RoundHalfEven(kHeight / 2.0 - height * middle), place.width, height };
}

const Rect& ScreenOf(const Rect& window, std::span<const Rect> screens)
{
    const auto* best = &screens.front();
    for (const auto& screen : screens) {
        if (SharedArea(window, screen) > SharedArea(window, *best))
            best = &screen;
    }
    return *best;
}

Rect MoveOntoScreen(Rect window, std::span<const Rect> screens)
{
    if (screens.empty())
        return window;
    const Rect titleBar{ window.left, window.top, window.width, 2 * kGripHeight };
    const auto showsGrip = [&](const Rect& screen) { return SharedArea(titleBar, screen) >= kGripWidth * kGripHeight; };
    if (std::any_of(screens.begin(), screens.end(), showsGrip))
        return window;
    const auto& best = ScreenOf(window, screens);
    window.width = std::min(window.width, best.width);
    window.height = std::min(window.height, best.height);
    window.left = std::clamp(window.left, best.left, best.Right() - window.width);
    window.top = std::clamp(window.top, best.top, best.Bottom() - window.height);
    return window;
}

} // namespace zentaro
