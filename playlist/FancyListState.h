#pragma once

#include "base/Picture.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zentaro {

/// One row of the list: the title, the thumbnail (may be empty), and a short second line under the title.
struct FancyListItem {
    std::string Text;
    Picture Pic;
    std::string Detail;
};

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

/// What the screen of a FancyListState is told.
class FancyListObserver {
public:
    virtual ~FancyListObserver() = default;
    /// The surface is to be painted anew.
    virtual void RepaintRequested() = 0;
    /// Items came or went, or the selection moved, also while `Refresh` is off.
    virtual void ListChanged() { }
};

/// The state, the rules and the geometry of the thumbnail list, without a screen. All lengths are logical pixels.
class FancyListState {
public:
    static constexpr int kNone = -1;

    /// One observer at most; null for none. It is not owned.
    void SetObserver(FancyListObserver* observer) { m_observer = observer; }

    int Count() const { return static_cast<int>(m_items.size()); }
    /// Only for 0 <= index < Count().
    const FancyListItem& Item(int index) const { return m_items[static_cast<std::size_t>(index)]; }

    /// The selected row, kNone for none. After the last row was removed it can be Count(), one past the end.
    int SelectedItem() const { return m_selectedItem; }
    /// Values that name no row are ignored.
    void SetSelectedItem(int index);
    /// Empty when the selection names no row.
    std::string SelectedText() const;

    /// The row that carries the mark of the entry being played, kNone for none. It moves with its row.
    int PlayingItem() const { return m_playingItem; }
    /// Values that name no row take the mark away.
    void SetPlayingItem(int index);

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
    /// Whether changes repaint by themselves. Setting it always repaints.
    bool Refresh() const { return m_refresh; }
    void SetRefresh(bool on);
    bool Thumbnails() const { return m_thumbnails; }
    /// Repaints nothing: the next paint shows it.
    void SetThumbnails(bool on) { m_thumbnails = on; }

    void AddItem(std::string text, Picture picture, std::string detail = {});
    void Clear();
    /// The row behind the removed one is selected, if there is one; else the selection keeps its number.
    void RemoveItem(int index);

    /// The control was resized. Repaints whatever `Refresh` says.
    void SetSurfaceSize(int width, int height);
    int SurfaceWidth() const { return m_surfaceWidth; }
    int SurfaceHeight() const { return m_surfaceHeight; }

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

    ListRows VisibleRows() const;
    /// The row at a height of the surface; kNone above the first and below the last row.
    int RowAt(int y) const;
    /// The whole row; a background leaves the last line of it to the separator.
    ListRect RowRect(int row) const;
    ListRect TextRect(int row) const;
    /// The box that holds the thumbnail.
    ListRect ImageRect(int row) const;
    /// Where a picture of the given size lies in a box: fitted, its proportions kept, small ones enlarged.
    static ListRect FitThumb(int pictureWidth, int pictureHeight, const ListRect& box);

    /// A left press on the surface: selects the row, or nothing below the last one.
    void PressAt(int y);

private:
    int RowHeight() const;
    int RowTop(int row) const;
    int FirstRow() const;
    int RowsEnd() const;
    void UpdateScrollRange();
    void Repaint() const;
    void RepaintIfRefresh() const;
    void Changed() const;

    std::vector<FancyListItem> m_items;
    FancyListObserver* m_observer = nullptr;
    int m_selectedItem = kNone;
    int m_playingItem = kNone;
    int m_itemHeight = 64;
    int m_padding = 8;
    int m_imageWidth = 0;
    int m_imageHeight = 0;
    bool m_refresh = true;
    bool m_thumbnails = true;
    bool m_noThumbBlack = false;
    int m_surfaceWidth = 0;
    int m_surfaceHeight = 0;
    int m_scrollValue = 0;
    int m_scrollMax = 0;
};

} // namespace zentaro
