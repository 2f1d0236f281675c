#pragma once

#include "playlist/FancyListItems.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace zentaro {

/// A rectangle in logical pixels of the drawing surface; right and bottom edges are exclusive.
struct ListRect {
    int left = 0, top = 0, right = 0, bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool operator==(const ListRect&) const = default;
};

/// The rows that a paint touches; none when last < first.
struct ListRows {
    int first = 0, last = -1;
    bool operator==(const ListRows&) const = default;
};

/// Where the rows of a FancyListItems lie on a surface, and how far it is scrolled, without a screen. All lengths are
/// logical pixels. The screen is told what the items tell, once the rows have their new places.
class FancyListLayout : private FancyListObserver {
public:
    /// Becomes the observer of `items`; these and the screen must outlive it.
    FancyListLayout(FancyListItems& items, FancyListObserver& screen);
    ~FancyListLayout() override;
    FancyListLayout(const FancyListLayout&) = delete;
    FancyListLayout& operator=(const FancyListLayout&) = delete;

    const FancyListItems& Items() const { return m_items; }

    int ItemHeight() const { return m_itemHeight; }
    void SetItemHeight(int height);
    int ImageWidth() const { return m_imageWidth; }
    void SetImageWidth(int width);
    int ImageHeight() const { return m_imageHeight; }
    void SetImageHeight(int height);
    int Padding() const { return m_padding; }
    void SetPadding(int padding);
    bool NoThumbBlack() const { return m_noThumbBlack; }
    void SetNoThumbBlack(bool on);
    bool Thumbnails() const { return m_thumbnails; }
    /// Repaints nothing: the next paint shows it.
    void SetThumbnails(bool on) { m_thumbnails = on; }

    /// The control was resized. Repaints whatever `Refresh` says.
    void SetSurfaceSize(int width, int height);
    int SurfaceWidth() const { return m_surfaceWidth; }
    int SurfaceHeight() const { return m_surfaceHeight; }

    /// Only these rows, in ascending order, have a place on the surface; nothing for all. Rows that are not there any
    /// more are passed over.
    void SetFilter(std::optional<std::vector<int>> rows);
    bool IsFiltered() const { return m_filter.has_value(); }
    /// How many rows have a place.
    int PlaceCount() const { return m_filter ? static_cast<int>(m_filter->size()) : m_items.Count(); }
    /// The row at a place, from 0; without a filter each row is at its own.
    int RowOf(int place) const { return m_filter ? (*m_filter)[static_cast<std::size_t>(place)] : place; }
    /// FancyListItems::kNone for a row without a place.
    int PlaceOf(int row) const;

    /// Moves the view by a wheel delta (120 a step); a positive one scrolls up.
    void Scroll(int delta);
    /// Pixels scrolled from the top, 0 to ScrollMax().
    int ScrollValue() const { return m_scrollValue; }
    int ScrollMax() const { return m_scrollMax; }
    /// The scroll bar was moved: repaints whatever `Refresh` says. Values outside the range take its nearest end.
    void SetScrollValue(int value);
    /// Scrolls as little as it takes to show the whole row, and not at all when it is shown or names no row.
    void ScrollToRow(int row);
    bool ScrollBarVisible() const;
    /// The bar at the right edge for a bar `width` pixels wide.
    ListRect ScrollBar(int width) const;
    /// The part of the bar that stands for the visible rows.
    ListRect ScrollThumb(int width) const;
    /// The scroll value that brings the top of the thumb to `top`.
    int ScrollValueForThumb(int top) const;

    /// The places of the rows that a paint touches.
    ListRows VisibleRows() const;
    /// The row at a height of the surface; FancyListItems::kNone above the first and below the last one.
    int RowAt(int y) const;
    /// The whole row; a background leaves the last line of it to the separator.
    ListRect RowRect(int row) const;
    ListRect TextRect(int row) const;
    /// The box that holds the thumbnail.
    ListRect ImageRect(int row) const;
    /// Where a picture of the given size lies in a box: fitted, its proportions kept, small ones enlarged.
    static ListRect FitThumb(int pictureWidth, int pictureHeight, const ListRect& box);

private:
    void RepaintRequested() override { m_screen.RepaintRequested(); }
    void ListChanged() override;
    void RowWanted(int row) override { ScrollToRow(row); }
    int RowHeight() const;
    int RowTop(int row) const;
    int FirstRow() const;
    int RowsEnd() const;
    void UpdateScrollRange();
    void RepaintIfRefresh();

    FancyListItems& m_items;
    FancyListObserver& m_screen;
    std::optional<std::vector<int>> m_filter;
    int m_itemHeight = 64;
    int m_padding = 8;
    int m_imageWidth = 0;
    int m_imageHeight = 0;
    bool m_thumbnails = true;
    bool m_noThumbBlack = false;
    int m_surfaceWidth = 0;
    int m_surfaceHeight = 0;
    int m_scrollValue = 0;
    int m_scrollMax = 0;
};

} // namespace zentaro
