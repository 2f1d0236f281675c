#include "shell/WindowLayout.h"

namespace zentaro {

namespace {

// What must show of the title bar for a hand to find it.
constexpr int kGripWidth = 64;
constexpr int kGripHeight = 16;

} // namespace

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

Rect MoveOntoScreen(Rect window, std::span<const Rect> screens)
{
    if (screens.empty())
        return window;
    const Rect titleBar{ window.left, window.top, window.width, 2 * kGripHeight };
    const Rect* best = &screens.front();
    for (const auto& screen : screens) {
        if (SharedArea(titleBar, screen) >= kGripWidth * kGripHeight)
            return window;
        if (SharedArea(window, screen) > SharedArea(window, *best))
            best = &screen;
    }
    window.width = std::min(window.width, best->width);
    window.height = std::min(window.height, best->height);
    window.left = std::clamp(window.left, best->left, best->Right() - window.width);
    window.top = std::clamp(window.top, best->top, best->Bottom() - window.height);
    return window;
}

} // namespace zentaro
