#include "playlist/RowDrag.h"

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <utility>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr auto kScrollTime = 16ms;
constexpr int kEdge = 32;        // px
constexpr int kSlowest = 3;      // px in that time
constexpr int kPixelsFaster = 3; // px beyond the edge for one more

} // namespace

RowDrag::RowDrag(FancyListLayout& layout)
    : m_layout(layout)
{
    m_scrolling.setInterval(kScrollTime);
    connect(&m_scrolling, &QTimer::timeout, this, &RowDrag::ScrollOn);
}

void RowDrag::Press(const QPoint& at)
{
    m_isHeld = m_layout.RowAt(at.y()) != FancyListItems::kNone && !m_layout.IsFiltered();
    m_pressed = at;
}

void RowDrag::Move(const QPoint& at)
{
    m_at = at;
    if (!m_isHeld || (!m_isDragging && (at - m_pressed).manhattanLength() < QApplication::startDragDistance()))
        return;
    if (!std::exchange(m_isDragging, true))
        m_scrolling.start();
}

std::optional<int> RowDrag::Release()
{
    const bool wasDragging = m_isDragging;
    const int target = Target();
    Cancel();
    return wasDragging ? std::optional(target) : std::nullopt;
}

void RowDrag::Cancel()
{
    m_isHeld = m_isDragging = false;
    m_scrolling.stop();
}

int RowDrag::Target() const
{
    const int height = std::max(1, m_layout.ItemHeight());
    return std::clamp((m_layout.ScrollValue() + m_at.y() + height / 2) / height, 0, m_layout.Items().Count());
}

int RowDrag::LineTop() const
{
    return Target() * m_layout.ItemHeight() - m_layout.ScrollValue() - 1;
}

void RowDrag::ScrollOn()
{
    const int above = kEdge - m_at.y();
    const int below = m_at.y() - (m_layout.SurfaceHeight() - kEdge);
    if (above > 0)
        m_layout.SetScrollValue(m_layout.ScrollValue() - kSlowest - above / kPixelsFaster);
    else if (below > 0)
        m_layout.SetScrollValue(m_layout.ScrollValue() + kSlowest + below / kPixelsFaster);
}

} // namespace zentaro
