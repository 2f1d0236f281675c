#include "playlist/Playlist.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace zentaro {

Playlist::Playlist(RandomSource random)
    : m_order(std::move(random))
{
}

std::optional<PlaylistEntry> Playlist::EntryAt(int index) const
{
    if (!IsEntry(index))
        return std::nullopt;
    const auto& row = m_list.Item(index);
    const auto& file = m_files[static_cast<std::size_t>(index)];
    return PlaylistEntry{ row.Text, file.FullPath, row.Pic, file.MediaInfo, file.Id };
}

std::string Playlist::PathAt(int index) const
{
    return IsEntry(index) ? m_files[static_cast<std::size_t>(index)].FullPath : std::string();
}

std::optional<int> Playlist::IndexOf(std::uint64_t id) const
{
    const auto at = std::find_if(m_files.begin(), m_files.end(), [&](const File& file) { return file.Id == id; });
    return at != m_files.end() ? std::optional(static_cast<int>(at - m_files.begin())) : std::nullopt;
}

void Playlist::Append(PlaylistEntry entry, std::string detail)
{
    ++m_revision;
    m_paths.insert(entry.FullPath);
    m_files.push_back({ std::move(entry.FullPath), std::move(entry.MediaInfo), ++m_lastId });
    m_list.AddItem(std::move(entry.Title), std::move(entry.Thumbnail), std::move(detail));
}

void Playlist::BuildOrder(std::int32_t playMode)
{
    if (playMode == kPlayShuffle)
        BuildShuffleOrder();
    else
        BuildSequentialOrder();
}

void Playlist::RemoveSelected()
{
    const int selected = m_list.SelectedItem();
    if (!IsEntry(selected))
        return;
    ++m_revision;
    m_paths.erase(PathAt(selected));
    m_files.erase(m_files.begin() + selected);
    m_order.RemoveAt(selected);
    m_list.RemoveItem(selected);
}

void Playlist::RemoveAll()
{
    ++m_revision;
    m_files.clear();
    m_paths.clear();
    m_order.Clear();
    m_list.Clear();
}

void Playlist::OnClick(std::int32_t playMode)
{
    if (playMode != kPlayShuffle)
        MovePositionToSelected();
}

bool Playlist::MoveSelection(SelectionMove move, std::int32_t playMode)
{
    const int before = m_list.SelectedItem();
    const int last = Count() - 1;
    int row = 0;
    if (move == SelectionMove::Up)
        row = std::max(before - 1, 0);
    else if (move == SelectionMove::Down)
        row = std::min(before + 1, last);
    else if (move == SelectionMove::ToLast)
        row = last;
    m_list.SetSelectedItem(row);
    m_list.ShowRow(row);
    OnClick(playMode);
    return m_list.SelectedItem() != before;
}

std::optional<int> Playlist::DoubleClickedIndex() const
{
    return IsEntry(m_list.SelectedItem()) ? std::optional(m_list.SelectedItem()) : std::nullopt;
}

EndOfItem Playlist::OnEndOfItem(std::int32_t playMode, std::int32_t repeatMode)
{
    const auto next = DecideEndOfItem(playMode, repeatMode, m_order);
    if (next.action == EndOfItem::Action::Play) {
        m_list.SetSelectedItem(next.index);
        m_list.SetRefresh(true);
    }
    return next;
}

std::optional<int> Playlist::StepTo(std::optional<int> position)
{
    if (position) {
        m_order.SetPosition(*position);
        m_list.SetSelectedItem(*position);
    }
    return position;
}

} // namespace zentaro
