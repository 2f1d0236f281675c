#include "playlist/FancyListItems.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zentaro {

void FancyListItems::SetSelectedItem(int index)
{
    if (IsRow(index))
        Press(index);
}

std::string FancyListItems::SelectedText() const
{
    return IsRow(m_selectedItem) ? Item(m_selectedItem).Text : std::string();
}

void FancyListItems::Press(int row)
{
    m_selectedItem = IsRow(row) ? row : kNone;
    Changed();
}

void FancyListItems::SetPlayingItem(int index)
{
    m_playingItem = IsRow(index) ? index : kNone;
    RepaintIfRefresh();
    ShowRow(m_playingItem);
}

void FancyListItems::MarkPlaying(int index)
{
    m_playingItem = IsRow(index) ? index : kNone;
    RepaintIfRefresh();
}

std::vector<FancyListItem> FancyListItems::TakeItems()
{
    m_playingItem = kNone;
    return std::exchange(m_items, {});
}

void FancyListItems::SetItems(std::vector<FancyListItem> items)
{
    m_items = std::move(items);
    if (m_selectedItem > Count())
        m_selectedItem = kNone;
    Changed();
}

void FancyListItems::RestoreSelection(int index)
{
    m_selectedItem = index >= 0 && index <= Count() ? index : kNone;
    Changed();
}

void FancyListItems::SetSeen(int row, double share)
{
    constexpr double smallest = 0.005; // that can be seen of it
    if (!IsRow(row))
        return;
    auto& seen = m_items[static_cast<std::size_t>(row)].Seen;
    if (std::abs(seen - share) < smallest && (share < 1 || seen >= 1) && (share > 0 || seen <= 0))
        return;
    seen = share;
    RepaintIfRefresh();
}

std::vector<int> FancyListItems::MarkedRows() const
{
    std::vector<int> rows;
    for (int row = 0; row < Count(); ++row) {
        if (Item(row).IsMarked)
            rows.push_back(row);
    }
    return rows;
}

bool FancyListItems::IsAnyMarked() const
{
    return std::ranges::any_of(m_items, &FancyListItem::IsMarked);
}

void FancyListItems::SetMarked(int row, bool isMarked)
{
    if (!IsRow(row))
        return;
    m_items[static_cast<std::size_t>(row)].IsMarked = isMarked;
    Changed();
}

void FancyListItems::MarkOnly(int from, int to)
{
    for (int row = 0; row < Count(); ++row)
        m_items[static_cast<std::size_t>(row)].IsMarked = row >= std::min(from, to) && row <= std::max(from, to);
    Changed();
}

void FancyListItems::ClearMarks()
{
    if (!IsAnyMarked())
        return;
    for (auto& item : m_items)
        item.IsMarked = false;
    Changed();
}

void FancyListItems::ShowRow(int row) const
{
    if (m_observer && IsRow(row))
        m_observer->RowWanted(row);
}

void FancyListItems::SetRefresh(bool on)
{
    m_refresh = on;
    if (m_observer)
        m_observer->RepaintRequested();
}

void FancyListItems::AddItem(std::string text, Picture picture, std::string detail)
{
    m_items.push_back({ std::move(text), std::move(picture), std::move(detail) });
    Changed();
}

void FancyListItems::SetPicture(int index, Picture picture)
{
    if (!IsRow(index))
        return;
    m_items[static_cast<std::size_t>(index)].Pic = std::move(picture);
    RepaintIfRefresh();
}

void FancyListItems::Clear()
{
    m_items.clear();
    m_selectedItem = kNone;
    m_playingItem = kNone;
    Changed();
}

void FancyListItems::RemoveItem(int index)
{
    if (!IsRow(index))
        return;
    m_items.erase(m_items.begin() + index);
    if (index < Count())
        m_selectedItem = index;
    if (m_playingItem == index)
        m_playingItem = kNone;
    else if (m_playingItem > index)
        --m_playingItem;
    Changed();
}

void FancyListItems::Changed() const
{
    if (m_observer)
        m_observer->ListChanged();
    RepaintIfRefresh();
}

void FancyListItems::RepaintIfRefresh() const
{
    if (m_refresh && m_observer)
        m_observer->RepaintRequested();
}

} // namespace zentaro
