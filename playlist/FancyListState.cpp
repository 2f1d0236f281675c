#include "playlist/FancyListState.h"

#include "base/Numbers.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zentaro {

namespace {

// A wheel step of 120 moves the view by 7.5 pixels.
constexpr double kWheelUnitsPerPixel = 16;
constexpr int kScrollBarMargin = 4;
constexpr int kSmallestThumb = 28;

int Clamp(std::int64_t value)
{
    constexpr std::int64_t limit = std::numeric_limits<std::int32_t>::max();
    return static_cast<int>(std::clamp(value, -limit, limit));
}

} // namespace

void FancyListState::SetSelectedItem(int index)
{
    if (index < 0 || index >= Count())
        return;
    m_selectedItem = index;
    Changed();
    RepaintIfRefresh();
}

std::string FancyListState::SelectedText() const
{
    return m_selectedItem >= 0 && m_selectedItem < Count() ? Item(m_selectedItem).Text : std::string();
}

void FancyListState::SetPlayingItem(int index)
{
    m_playingItem = index >= 0 && index < Count() ? index : kNone;
    RepaintIfRefresh();
}

void FancyListState::SetItemHeight(int height)
{
    m_itemHeight = height;
    UpdateScrollRange();
    RepaintIfRefresh();
}

void FancyListState::SetImageWidth(int width)
{
    m_imageWidth = width;
    RepaintIfRefresh();
}

void FancyListState::SetImageHeight(int height)
{
    m_imageHeight = height;
    RepaintIfRefresh();
}

void FancyListState::SetPadding(int padding)
{
    m_padding = padding;
    RepaintIfRefresh();
}

void FancyListState::SetNoThumbBlack(bool on)
{
    m_noThumbBlack = on;
    UpdateScrollRange();
    RepaintIfRefresh();
}

void FancyListState::SetRefresh(bool on)
{
    m_refresh = on;
    Repaint();
}

void FancyListState::AddItem(std::string text, Picture picture, std::string detail)
{
    m_items.push_back({ std::move(text), std::move(picture), std::move(detail) });
    UpdateScrollRange();
    Changed();
    RepaintIfRefresh();
}

void FancyListState::Clear()
{
    m_items.clear();
    m_selectedItem = kNone;
    m_playingItem = kNone;
    UpdateScrollRange();
    Changed();
    RepaintIfRefresh();
}

void FancyListState::RemoveItem(int index)
{
    if (index < 0 || index >= Count())
        return;
    m_items.erase(m_items.begin() + index);
    if (index < Count())
        m_selectedItem = index;
    if (m_playingItem == index)
        m_playingItem = kNone;
    else if (m_playingItem > index)
        --m_playingItem;
    UpdateScrollRange();
    Changed();
    RepaintIfRefresh();
}

void FancyListState::SetSurfaceSize(int width, int height)
{
    m_surfaceWidth = std::max(0, width);
    m_surfaceHeight = std::max(0, height);
    UpdateScrollRange();
    Repaint();
}

void FancyListState::Scroll(int delta)
{
    SetScrollValue(RoundHalfEven(m_scrollValue - delta / kWheelUnitsPerPixel));
}

void FancyListState::SetScrollValue(int value)
{
    m_scrollValue = std::clamp(value, 0, m_scrollMax);
    Repaint();
}

void FancyListState::ScrollToRow(int row)
{
    if (row < 0 || row >= Count())
        return;
    const auto rect = RowRect(row);
    if (rect.bottom > m_surfaceHeight)
        SetScrollValue(m_scrollValue + rect.bottom - m_surfaceHeight);
    // A row higher than the surface shows its top.
    if (const int top = RowTop(row); top < 0)
        SetScrollValue(m_scrollValue + top);
}

bool FancyListState::ScrollBarVisible() const
{
    return RowsEnd() <= Count();
}

ListRect FancyListState::ScrollBar(int width) const
{
    const int left = m_surfaceWidth - width - kScrollBarMargin;
    const int top = kScrollBarMargin / 2;
    return { left, top, left + width, top + std::max(0, m_surfaceHeight - kScrollBarMargin) };
}

ListRect FancyListState::ScrollThumb(int width) const
{
    auto bar = ScrollBar(width);
    const double total = static_cast<double>(m_scrollMax) + m_surfaceHeight;
    const int share = total > 0 ? RoundHalfEven(bar.Height() * (m_surfaceHeight / total)) : bar.Height();
    const int length = std::min(std::max(kSmallestThumb, share), bar.Height());
    const int way = bar.Height() - length;
    bar.top += m_scrollMax > 0 ? RoundHalfEven(static_cast<double>(way) * m_scrollValue / m_scrollMax) : 0;
    bar.bottom = bar.top + length;
    return bar;
}

int FancyListState::ScrollValueForThumb(int top) const
{
    const auto bar = ScrollBar(0);
    const int way = bar.Height() - ScrollThumb(0).Height();
    if (way <= 0)
        return 0;
    const int value = RoundHalfEven((static_cast<double>(top) - bar.top) * m_scrollMax / way);
    return std::clamp(value, 0, m_scrollMax);
}

ListRows FancyListState::VisibleRows() const
{
    return { FirstRow(), std::min(RowsEnd(), Count() - 1) };
}

int FancyListState::RowAt(int y) const
{
    const std::int64_t at = static_cast<std::int64_t>(m_scrollValue) + y;
    const std::int64_t row = at < 0 ? kNone : at / RowHeight();
    return row < Count() ? static_cast<int>(row) : kNone;
}

ListRect FancyListState::RowRect(int row) const
{
    const int top = RowTop(row);
    return { 0, top, m_surfaceWidth, Clamp(static_cast<std::int64_t>(top) + m_itemHeight) };
}

ListRect FancyListState::TextRect(int row) const
{
    const int top = Clamp(static_cast<std::int64_t>(RowTop(row)) + m_padding);
    const int indent = m_thumbnails ? Clamp(static_cast<std::int64_t>(m_imageWidth) + m_padding) : 0;
    return { Clamp(static_cast<std::int64_t>(m_padding) + indent), top,
        Clamp(static_cast<std::int64_t>(m_surfaceWidth) - m_padding),
        Clamp(static_cast<std::int64_t>(top) + m_itemHeight - m_padding) };
}

ListRect FancyListState::ImageRect(int row) const
{
    const int top = Clamp(static_cast<std::int64_t>(RowTop(row)) + m_padding);
    return { m_padding, top, Clamp(static_cast<std::int64_t>(m_padding) + m_imageWidth),
        Clamp(static_cast<std::int64_t>(top) + m_imageHeight) };
}

ListRect FancyListState::FitThumb(int pictureWidth, int pictureHeight, const ListRect& box)
{
    const int w = box.Width();
    const int h = box.Height();
    if (w <= 0 || h <= 0)
        return { box.left, box.top, box.left, box.top };
    double factor = 1.0;
    if (pictureWidth != 0 && pictureHeight != 0) {
        const double widthRatio = static_cast<double>(pictureWidth) / w;
        const double heightRatio = static_cast<double>(pictureHeight) / h;
        factor =
            heightRatio >= widthRatio ? static_cast<double>(h) / pictureHeight : static_cast<double>(w) / pictureWidth;
    }
    const int drawnWidth = RoundHalfEven(factor * pictureWidth);
    const int drawnHeight = RoundHalfEven(factor * pictureHeight);
    const int left = box.left + (drawnWidth < w ? RoundHalfEven((w - drawnWidth) / 2.0) : 0);
    const int top = box.top + (drawnHeight < h ? RoundHalfEven((h - drawnHeight) / 2.0) : 0);
    return { left, top, left + drawnWidth, top + drawnHeight };
}

void FancyListState::PressAt(int y)
{
    m_selectedItem = RowAt(y);
    Changed();
    RepaintIfRefresh();
}

int FancyListState::RowHeight() const
{
    return std::max(1, m_itemHeight);
}

int FancyListState::RowTop(int row) const
{
    return Clamp(static_cast<std::int64_t>(row) * m_itemHeight - m_scrollValue);
}

int FancyListState::FirstRow() const
{
    return m_scrollValue / RowHeight();
}

// At the very bottom of a list whose surface holds whole rows this lies past the end, and the scroll bar hides.
int FancyListState::RowsEnd() const
{
    return FirstRow() + m_surfaceHeight / RowHeight() + 1;
}

void FancyListState::UpdateScrollRange()
{
    const std::int64_t range = static_cast<std::int64_t>(Count()) * m_itemHeight - m_surfaceHeight;
    m_scrollMax = Count() > 0 ? std::max(0, Clamp(range)) : 0;
    // A scroll bar that is moved by its own range tells so like any other move.
    if (m_scrollValue > m_scrollMax)
        SetScrollValue(m_scrollMax);
}

void FancyListState::Repaint() const
{
    if (m_observer)
        m_observer->RepaintRequested();
}

void FancyListState::RepaintIfRefresh() const
{
    if (m_refresh)
        Repaint();
}

void FancyListState::Changed() const
{
    if (m_observer)
        m_observer->ListChanged();
}

} // namespace zentaro
