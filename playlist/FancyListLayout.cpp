#include "playlist/FancyListLayout.h"

#include "base/Numbers.h"

#include <algorithm>
#include <limits>

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

FancyListLayout::FancyListLayout(FancyListItems& items, FancyListObserver& screen)
    : m_items(items)
    , m_screen(screen)
{
    m_items.SetObserver(this);
    UpdateScrollRange();
}

FancyListLayout::~FancyListLayout()
{
    m_items.SetObserver(nullptr);
}

void FancyListLayout::SetItemHeight(int height)
{
    m_itemHeight = height;
    UpdateScrollRange();
    RepaintIfRefresh();
}

void FancyListLayout::SetImageWidth(int width)
{
    m_imageWidth = width;
    RepaintIfRefresh();
}

void FancyListLayout::SetImageHeight(int height)
{
    m_imageHeight = height;
    RepaintIfRefresh();
}

void FancyListLayout::SetPadding(int padding)
{
    m_padding = padding;
    RepaintIfRefresh();
}

void FancyListLayout::SetNoThumbBlack(bool on)
{
    m_noThumbBlack = on;
    UpdateScrollRange();
    RepaintIfRefresh();
}

void FancyListLayout::SetSurfaceSize(int width, int height)
{
    m_surfaceWidth = std::max(0, width);
    m_surfaceHeight = std::max(0, height);
    UpdateScrollRange();
    RepaintRequested();
}

void FancyListLayout::SetFilter(std::optional<std::vector<int>> rows)
{
    m_filter = std::move(rows);
    if (m_filter)
        std::erase_if(*m_filter, [this](int row) { return row >= m_items.Count(); });
    UpdateScrollRange();
    RepaintRequested();
}

int FancyListLayout::PlaceOf(int row) const
{
    if (!m_filter)
        return row;
    const auto at = std::lower_bound(m_filter->begin(), m_filter->end(), row);
    return at != m_filter->end() && *at == row ? static_cast<int>(at - m_filter->begin()) : FancyListItems::kNone;
}

void FancyListLayout::Scroll(int delta)
{
    SetScrollValue(RoundHalfEven(m_scrollValue - delta / kWheelUnitsPerPixel));
}

void FancyListLayout::SetScrollValue(int value)
{
    m_scrollValue = std::clamp(value, 0, m_scrollMax);
    RepaintRequested();
}

void FancyListLayout::ScrollToRow(int row)
{
    if (row < 0 || row >= m_items.Count() || PlaceOf(row) < 0)
        return;
    const auto rect = RowRect(row);
    if (rect.bottom > m_surfaceHeight)
        SetScrollValue(m_scrollValue + rect.bottom - m_surfaceHeight);
    // A row higher than the surface shows its top.
    if (const int top = RowTop(row); top < 0)
        SetScrollValue(m_scrollValue + top);
}

bool FancyListLayout::ScrollBarVisible() const
{
    return RowsEnd() <= PlaceCount();
}

ListRect FancyListLayout::ScrollBar(int width) const
{
    const int left = m_surfaceWidth - width - kScrollBarMargin;
    const int top = kScrollBarMargin / 2;
    return { left, top, left + width, top + std::max(0, m_surfaceHeight - kScrollBarMargin) };
}

ListRect FancyListLayout::ScrollThumb(int width) const
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

int FancyListLayout::ScrollValueForThumb(int top) const
{
    const auto bar = ScrollBar(0);
    const int way = bar.Height() - ScrollThumb(0).Height();
    if (way <= 0)
        return 0;
    const int value = RoundHalfEven((static_cast<double>(top) - bar.top) * m_scrollMax / way);
    return std::clamp(value, 0, m_scrollMax);
}

ListRows FancyListLayout::VisibleRows() const
{
    return { FirstRow(), std::min(RowsEnd(), PlaceCount() - 1) };
}

int FancyListLayout::RowAt(int y) const
{
    const std::int64_t at = static_cast<std::int64_t>(m_scrollValue) + y;
    const std::int64_t place = at < 0 ? FancyListItems::kNone : at / RowHeight();
    return place >= 0 && place < PlaceCount() ? RowOf(static_cast<int>(place)) : FancyListItems::kNone;
}

ListRect FancyListLayout::RowRect(int row) const
{
    const int top = RowTop(row);
    return { 0, top, m_surfaceWidth, Clamp(static_cast<std::int64_t>(top) + m_itemHeight) };
}

ListRect FancyListLayout::TextRect(int row) const
{
    const int top = Clamp(static_cast<std::int64_t>(RowTop(row)) + m_padding);
    const int indent = m_thumbnails ? Clamp(static_cast<std::int64_t>(m_imageWidth) + m_padding) : 0;
    return { Clamp(static_cast<std::int64_t>(m_padding) + indent), top,
        Clamp(static_cast<std::int64_t>(m_surfaceWidth) - m_padding),
        Clamp(static_cast<std::int64_t>(top) + m_itemHeight - m_padding) };
}

ListRect FancyListLayout::ImageRect(int row) const
{
    const int top = Clamp(static_cast<std::int64_t>(RowTop(row)) + m_padding);
    return { m_padding, top, Clamp(static_cast<std::int64_t>(m_padding) + m_imageWidth),
        Clamp(static_cast<std::int64_t>(top) + m_imageHeight) };
}

ListRect FancyListLayout::FitThumb(int pictureWidth, int pictureHeight, const ListRect& box)
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

void FancyListLayout::ListChanged()
{
    if (m_filter)
        std::erase_if(*m_filter, [this](int row) { return row >= m_items.Count(); });
    UpdateScrollRange();
    m_screen.ListChanged();
}

int FancyListLayout::RowHeight() const
{
    return std::max(1, m_itemHeight);
}

int FancyListLayout::RowTop(int row) const
{
    return Clamp(static_cast<std::int64_t>(PlaceOf(row)) * m_itemHeight - m_scrollValue);
}

int FancyListLayout::FirstRow() const
{
    return m_scrollValue / RowHeight();
}

// At the very bottom of a list whose surface holds whole rows this lies past the end, and the scroll bar hides.
int FancyListLayout::RowsEnd() const
{
    return FirstRow() + m_surfaceHeight / RowHeight() + 1;
}

void FancyListLayout::UpdateScrollRange()
{
    const std::int64_t range = static_cast<std::int64_t>(PlaceCount()) * m_itemHeight - m_surfaceHeight;
    m_scrollMax = PlaceCount() > 0 ? std::max(0, Clamp(range)) : 0;
    // A scroll bar that is moved by its own range tells so like any other move.
    if (m_scrollValue > m_scrollMax)
        SetScrollValue(m_scrollMax);
}

void FancyListLayout::RepaintIfRefresh()
{
    if (m_items.Refresh())
        RepaintRequested();
}

} // namespace zentaro
