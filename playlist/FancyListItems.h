#pragma once

#include "base/Picture.h"

#include <functional>
#include <string>
#include <vector>

namespace zentaro {

/// One row of the list: the title, the thumbnail (may be empty), and a short second line under the title.
struct FancyListItem {
    std::string Text;
    Picture Pic;
    std::string Detail;
    double Seen = 0;       ///< how far it was played before, 0 to 1
    bool IsMarked = false; ///< one of several that were chosen together
};

/// What shows a FancyListItems is told.
class FancyListObserver {
public:
    virtual ~FancyListObserver() = default;
    /// What is shown is to be painted anew.
    virtual void RepaintRequested() = 0;
    /// Rows came or went, or the selection moved, also while `Refresh` is off.
    virtual void ListChanged() = 0;
    /// The row is to be brought into sight: it is being played now, or the keys have come to it.
    virtual void RowWanted(int /*row*/) { }
};

/// The rows of the thumbnail list, the selected one and the one being played. It knows of no pixels: those are
/// FancyListLayout's.
class FancyListItems {
public:
    static constexpr int kNone = -1;

    FancyListItems() = default;
    FancyListItems(const FancyListItems&) = delete;
    FancyListItems& operator=(const FancyListItems&) = delete;

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
    /// A left press: selects the row, or takes the selection away where there is none.
    void Press(int row);

    /// The row that carries the mark of the entry being played, kNone for none. It moves with its row.
    int PlayingItem() const { return m_playingItem; }
    /// Values that name no row take the mark away. A row that gets it is brought into sight.
    void SetPlayingItem(int index);
    /// As above, but the list stays where it is.
    void MarkPlaying(int index);
    /// Has the row brought into sight where the list is shown; values that name no row do nothing.
    void ShowRow(int row) const;

    /// Hears which rows are in sight, at every paint.
    std::function<void(int first, int last)> onRowsSeen;

    /// Whether changes repaint by themselves. Setting it always repaints.
    bool Refresh() const { return m_refresh; }
    void SetRefresh(bool on);

    void AddItem(std::string text, Picture picture, std::string detail = {});
    /// Another thumbnail for a row; values that name no row do nothing.
    void SetPicture(int index, Picture picture);
    void Clear();
    /// The row behind the removed one is selected, if there is one; else the selection keeps its number.
    void RemoveItem(int index);

    /// Takes all rows out, to be put back in another order; nobody is told before that. Selection and marks of the
    /// rows are not lost, the mark of the entry being played is.
    std::vector<FancyListItem> TakeItems();
    void SetItems(std::vector<FancyListItem> items);
    /// A selection of before: kNone, a row, or Count().
    void RestoreSelection(int index);

    /// Rows that are not there are left out.
    void SetSeen(int row, double share);

    // Several rows, chosen together for what is done next; beside the selection.
    /// In order.
    std::vector<int> MarkedRows() const;
    bool IsAnyMarked() const;
    /// Rows that are not there are left out.
    void SetMarked(int row, bool isMarked);
    /// These and no others, whichever of the two comes first.
    void MarkOnly(int from, int to);
    void ClearMarks();

private:
    bool IsRow(int index) const { return index >= 0 && index < Count(); }
    void Changed() const;
    void RepaintIfRefresh() const;

    std::vector<FancyListItem> m_items;
    FancyListObserver* m_observer = nullptr;
    int m_selectedItem = kNone;
    int m_playingItem = kNone;
    bool m_refresh = true;
};

} // namespace zentaro
