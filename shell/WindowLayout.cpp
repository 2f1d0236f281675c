#include "shell/WindowLayout.h"

#include "base/Numbers.h"

#include <algorithm>

namespace zentaro {

namespace {

constexpr int kBarEdge = 16;   // px, the bar's ends
constexpr int kBarGap = 12;    // px, between groups
constexpr int kBarSlider = 96; // px
constexpr int kBarTime = 130;  // px
constexpr int kPaneWish = 96;  // px, what neither pane falls below where there is room
constexpr int kPaneLeast = 40; // px, below it a list shows nothing
constexpr double kListShare = 0.45;
constexpr int kListRoom = 280; // px, at the most

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

Rect WindowLayout::PressRect(Button button) const
{
    auto rect = ButtonRect(button);
    if (rect.width <= 0)
        return rect;
    // The buttons of the title bar stand close: those at the ends grow outwards.
    if (button == Button::Minimize)
        rect.left = m_width - 78;
    else if (button == Button::Maximize)
        rect.left = m_width - 54;
    rect.width = std::max(rect.width, kLeastPress);
    rect.height = std::max(rect.height, kLeastPress);
    return rect;
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

BarLayout::BarLayout(int width)
    : m_width(width)
{
    for (auto fold = Fold::Nothing;; fold = static_cast<Fold>(static_cast<int>(fold) + 1)) {
        Place(fold);
        if (m_track.width >= kLeastTrack || fold == Fold::Neighbours)
            return;
    }
}

void BarLayout::Place(Fold fold)
{
    // The buttons' pictures end before their places do.
    const int buttons = PlaceButtons(fold) + (fold == Fold::Nothing ? 22 : kBarGap);
    int right = m_width - kBarEdge - 30;
    const auto placeLeftwards = [&](int gap, int top, int width, int height) {
        right -= gap + width;
        return Rect{ right, top, width, height };
    };
    m_buttons[static_cast<std::size_t>(Button::FullScreen)] = { right, 0, 30, kHeight };
    m_number = fold < Fold::Number ? placeLeftwards(kBarGap, 18, 30, 20) : Rect();
    m_slider = fold < Fold::Slider ? placeLeftwards(fold < Fold::Number ? 8 : kBarGap, 16, kBarSlider, 24) : Rect();
    const auto sound = placeLeftwards(fold < Fold::Slider ? 6 : kBarGap - 1, 0, 24, kHeight);
    for (const auto button : { Button::SoundOn, Button::SoundOff })
        m_buttons[static_cast<std::size_t>(button)] = sound;
    m_time = { buttons, 17, kBarTime, 22 };
    m_track = { m_time.Right() + 8, 16, sound.left - 16 - m_time.Right() - 8, 24 };
}

int BarLayout::PlaceButtons(Fold fold)
{
    struct Place {
        Button button;
        int width;
        int group;
        Fold goesWith; // Nothing: never
    };
    // Neighbours of the window stay neighbours: their plates fit together.
    constexpr Place places[] = {
        { Button::Previous, 29, 0, Fold::Neighbours },
        { Button::Rewind, 30, 0, Fold::HeldButtons },
        { Button::Stop, 36, 1, Fold::Stop },
        { Button::Play, 43, 1, Fold::Nothing },
        { Button::Pause, 35, 1, Fold::Nothing },
        { Button::FastForward, 29, 2, Fold::HeldButtons },
        { Button::Next, 28, 2, Fold::Neighbours },
    };
    int right = kBarEdge;
    int group = -1;
    for (const auto& place : places) {
        auto& rect = m_buttons[static_cast<std::size_t>(place.button)];
        rect = {};
        if (place.goesWith != Fold::Nothing && fold >= place.goesWith)
            continue;
        if (group >= 0 && place.group != group)
            right += kBarGap;
        group = place.group;
        rect = { right, 0, place.width, kHeight };
        right = rect.Right();
    }
    return right;
}

Rect BarLayout::ButtonRect(Button button) const
{
    const auto index = static_cast<std::size_t>(button);
    return index < m_buttons.size() ? m_buttons[index] : Rect();
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

PaneShare SharePanes(int room)
{
    const int both = room - PaneShare::kSplitter;
    const int minimum = std::clamp(both / 2, 0, kPaneWish);
    if (minimum < kPaneLeast)
        return { 0, 0 };
    const int wished = std::min(static_cast<int>(room * kListShare), kListRoom);
    return { std::max(wished, minimum), minimum };
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
    const auto& best = ScreenOf(window, screens);
    window.width = std::min(window.width, best.width);
    window.height = std::min(window.height, best.height);
    window.left = std::clamp(window.left, best.left, best.Right() - window.width);
    window.top = std::clamp(window.top, best.top, best.Bottom() - window.height);
    return window;
}

Rect FitFilm(const Rect& window, const Extent& shown, const Extent& film, const Rect& screen)
{
    if (film.width <= 0 || film.height <= 0)
        return window;
    const int across = window.width - shown.width;
    const int down = window.height - shown.height;
    const double room = std::min({ 1.0, static_cast<double>(screen.width - across) / film.width,
        static_cast<double>(screen.height - down) / film.height });
    Rect fitted;
    fitted.width = std::max(RoundHalfEven(film.width * room) + across, WindowLayout::kMinimumWidth);
    fitted.height = std::max(RoundHalfEven(film.height * room) + down, WindowLayout::kMinimumHeight);
    fitted.left = window.left + (window.width - fitted.width) / 2;
    fitted.top = window.top + (window.height - fitted.height) / 2;
    return MoveOntoScreen(fitted, std::span(&screen, 1));
}

} // namespace zentaro
