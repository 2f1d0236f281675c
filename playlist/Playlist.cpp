#include "playlist/Playlist.h"

#include <cstddef>
#include <utility>

namespace zentaro {

Playlist::Playlist(RandomSource random)
    : m_order(std::move(random))
{
}

const PlaylistEntry* Playlist::EntryAt(int index) const
{
    return index >= 0 && index < Count() ? &m_entries[static_cast<std::size_t>(index)] : nullptr;
}

std::string Playlist::PathAt(int index) const
{
    const auto* entry = EntryAt(index);
    return entry ? entry->FullPath : std::string();
}

void Playlist::Append(PlaylistEntry entry, std::string detail)
{
    m_paths.insert(entry.FullPath);
    entry.Id = ++m_lastId;
    ++m_revision;
    m_entries.push_back(std::move(entry));
    m_list.AddItem(m_entries.back().Title, m_entries.back().Thumbnail, std::move(detail));
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
    if (!EntryAt(selected))
        return;
    ++m_revision;
    m_paths.erase(PathAt(selected));
    m_entries.erase(m_entries.begin() + selected);
    m_order.RemoveAt(selected);
    m_list.RemoveItem(selected);
}

void Playlist::RemoveAll()
{
    ++m_revision;
    m_entries.clear();
    m_paths.clear();
    m_order.Clear();
    m_list.Clear();
}

void Playlist::OnClick(std::int32_t playMode)
{
    if (playMode != kPlayShuffle)
        MovePositionToSelected();
}

std::optional<int> Playlist::DoubleClickedIndex() const
{
    return SelectedEntry() ? std::optional(m_list.SelectedItem()) : std::nullopt;
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
