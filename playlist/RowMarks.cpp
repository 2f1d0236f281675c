#include "playlist/RowMarks.h"

namespace zentaro {

void RowMarks::Press(int row, bool ctrl, bool shift)
{
    const bool isRow = row >= 0 && row < m_items.Count();
    if (shift && isRow) {
        m_items.MarkOnly(m_anchor >= 0 ? m_anchor : row, row);
        return;
    }
    if (ctrl && isRow) {
        // What was selected before counts as chosen.
        if (!m_items.IsAnyMarked() && m_items.SelectedItem() != row)
            m_items.SetMarked(m_items.SelectedItem(), true);
        m_items.SetMarked(row, !m_items.Item(row).IsMarked);
    } else if (!isRow || !m_items.Item(row).IsMarked) {
        m_items.ClearMarks();
    }
    m_anchor = row;
}

void RowMarks::Release(int row, bool ctrl, bool shift)
{
    if (!ctrl && !shift && row >= 0 && row == m_anchor)
        m_items.ClearMarks();
}

void RowMarks::SelectionMoved(bool shift)
{
    const int row = m_items.SelectedItem();
    if (shift && m_anchor >= 0) {
        m_items.MarkOnly(m_anchor, row);
        return;
    }
    m_items.ClearMarks();
    m_anchor = row;
}

} // namespace zentaro
