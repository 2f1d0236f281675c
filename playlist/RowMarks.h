#pragma once

#include "playlist/FancyListItems.h"

namespace zentaro {

/// How several rows are chosen: with Ctrl one by one, with Shift from one row to another. The selection goes where it
/// is pressed all the same.
class RowMarks {
public:
    explicit RowMarks(FancyListItems& items)
        : m_items(items)
    {
    }

    /// A left press, before the selection moves. A plain one on a marked row keeps the marks, so that the rows can be
    /// dragged.
    void Press(int row, bool ctrl, bool shift);
    /// The press has ended without a drag.
    void Release(int row, bool ctrl, bool shift);
    /// A key has moved the selection.
    void SelectionMoved(bool shift);

private:
    FancyListItems& m_items;
    int m_anchor = FancyListItems::kNone;
};

} // namespace zentaro
