#include "playlist/Playlist.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>
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
    return PlaylistEntry{ row.Text, file.FullPath, row.Pic, file.MediaInfo, file.Id, file.Facts, file.IsThumbnailKept };
}

std::string Playlist::PathAt(int index) const
{
    return IsEntry(index) ? m_files[static_cast<std::size_t>(index)].FullPath : std::string();
}

std::optional<int> Playlist::IndexOf(std::uint64_t id) const
{
    // Entries can be arranged at will, so their ids are in no order.
    const auto at =
        std::find_if(m_files.begin(), m_files.end(), [&](const PlaylistFile& file) { return file.Id == id; });
    return at != m_files.end() ? std::optional(static_cast<int>(at - m_files.begin())) : std::nullopt;
}

std::uint64_t Playlist::Append(PlaylistEntry entry, std::string detail)
{
    if (!m_edits.IsAdding())
        m_edits.Begin(ListEdit::Add, Shape());
    ++m_revision;
    m_paths.insert(entry.FullPath);
    m_files.push_back(
        { std::move(entry.FullPath), std::move(entry.MediaInfo), ++m_lastId, entry.Facts, entry.IsThumbnailKept });
    m_list.AddItem(std::move(entry.Title), std::move(entry.Thumbnail), std::move(detail));
    return m_lastId;
}

void Playlist::SetThumbnail(std::uint64_t id, Picture picture, bool isKept)
{
    const auto index = IndexOf(id);
    if (!index)
        return;
    m_files[static_cast<std::size_t>(*index)].IsThumbnailKept = isKept;
    m_list.SetPicture(*index, std::move(picture));
}

std::optional<int> Playlist::IndexOfPath(const std::string& path) const
{
    if (!IsInPlaylist(path))
        return std::nullopt;
    const auto at =
        std::find_if(m_files.begin(), m_files.end(), [&](const PlaylistFile& file) { return file.FullPath == path; });
    return static_cast<int>(at - m_files.begin());
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
    auto& step = m_edits.Begin(ListEdit::Remove, Shape());
    step.away.push_back({ m_list.Item(selected), m_files[static_cast<std::size_t>(selected)] });
    ++m_revision;
    m_paths.erase(PathAt(selected));
    m_files.erase(m_files.begin() + selected);
    m_order.RemoveAt(selected);
    m_list.RemoveItem(selected);
    step.left = Left();
}

void Playlist::RemoveAll()
{
    ListStep* const step = Count() > 0 ? &m_edits.Begin(ListEdit::RemoveAll, Shape()) : nullptr;
    if (step != nullptr)
        TakeEntries({}, step->away);
    ++m_revision;
    m_order.Clear();
    m_list.Clear();
    if (step != nullptr)
        step->left = Left();
}

ListShape Playlist::Shape() const
{
    ListShape shape;
    shape.ids.reserve(m_files.size());
    for (const auto& file : m_files)
        shape.ids.push_back(file.Id);
    shape.order = m_order.Save();
    shape.selected = m_list.SelectedItem();
    return shape;
}

ListStep::Left Playlist::Left() const
{
    return { m_list.SelectedItem(), m_order.Position(), m_order.Builds() };
}

void Playlist::Arrange(ListEdit edit, const std::vector<int>& rows, std::int32_t playMode)
{
    auto& step = m_edits.Begin(edit, Shape());
    std::vector<std::uint64_t> ids;
    ids.reserve(rows.size());
    for (const int row : rows)
        ids.push_back(IdAt(row));
    // The place that a removed selection leaves is the next entry's.
    const int selected = m_list.SelectedItem();
    int next = 0;
    for (const int row : rows)
        next += row < selected ? 1 : 0;
    const auto selectedId = IdAt(selected);
    TakeEntries(ids, step.away);
    const auto kept = IndexOf(selectedId);
    if (selected >= 0)
        m_list.RestoreSelection(kept.value_or(std::min(next, Count() - 1)));
    BuildOrder(playMode);
    step.left = Left();
}

bool Playlist::Undo(std::int32_t playMode)
{
    auto* const step = m_edits.Undoable();
    if (step == nullptr)
        return false;
    TakeShape(*step, playMode);
    m_edits.Undone();
    return true;
}

bool Playlist::Redo(std::int32_t playMode)
{
    auto* const step = m_edits.Redoable();
    if (step == nullptr)
        return false;
    TakeShape(*step, playMode);
    m_edits.Redone();
    return true;
}

void Playlist::TakeShape(ListStep& step, std::int32_t playMode)
{
    auto present = Shape();
    const auto target = std::exchange(step.other, std::move(present));
    const bool isUntouched = step.left == Left();
    const auto selectedId = IdAt(m_list.SelectedItem());
    TakeEntries(target.ids, step.away);
    if (isUntouched) {
        m_order.Restore(target.order);
        m_list.RestoreSelection(target.selected);
    } else {
        const auto kept = IndexOf(selectedId);
        m_list.RestoreSelection(kept ? *kept : target.selected);
        BuildOrder(playMode);
    }
    step.left = Left();
}

void Playlist::TakeEntries(const std::vector<std::uint64_t>& ids, std::vector<ListStep::Away>& away)
{
    ++m_revision;
    const auto playing = IdAt(m_list.PlayingItem());
    std::unordered_map<std::uint64_t, ListStep::Away> entries;
    auto rows = m_list.TakeItems();
    for (std::size_t i = 0; i < rows.size(); ++i)
        entries.insert({ m_files[i].Id, { std::move(rows[i]), std::move(m_files[i]) } });
    for (auto& entry : std::exchange(away, {}))
        entries.insert({ entry.file.Id, std::move(entry) });
    rows.clear();
    m_files.clear();
    m_paths.clear();
    for (const auto id : ids) {
        auto node = entries.extract(id);
        rows.push_back(std::move(node.mapped().row));
        m_files.push_back(std::move(node.mapped().file));
        m_paths.insert(m_files.back().FullPath);
    }
    for (auto& [id, entry] : entries)
        away.push_back(std::move(entry));
    m_list.SetItems(std::move(rows));
    m_list.MarkPlaying(IndexOf(playing).value_or(FancyListItems::kNone));
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

void Playlist::StandOn(std::optional<int> index)
{
    if (!index)
        return m_order.SetPosition(m_order.Position() - 1);
    m_list.SetSelectedItem(*index);
    if (const auto position = PositionOf(*index))
        m_order.SetPosition(*position);
}

std::optional<int> Playlist::PositionOf(int index)
{
    for (int position = 0; position < m_order.Count(); ++position) {
        if (m_order.At(position) == index)
            return position;
    }
    return std::nullopt;
}

std::optional<int> Playlist::FollowsAtEnd(std::int32_t playMode, std::int32_t repeatMode, std::optional<int> present)
{
    const int position = m_order.Position();
    if (const auto of = present ? PositionOf(*present) : std::nullopt)
        m_order.SetPosition(*of);
    const auto next = DecideEndOfItem(playMode, repeatMode, m_order);
    m_order.SetPosition(position);
    const int index = next.action == EndOfItem::Action::Play ? next.index
        : next.action == EndOfItem::Action::RestartSame      ? present.value_or(m_list.SelectedItem())
                                                             : PlayOrder::kNone;
    return IsEntry(index) ? std::optional(index) : std::nullopt;
}

std::optional<int> Playlist::StepInOrder(bool back)
{
    const auto position = back ? PreviousPosition(m_order) : NextPosition(m_order);
    if (!position)
        return std::nullopt;
    m_order.SetPosition(*position);
    const int index = m_order.At(*position);
    m_list.SetSelectedItem(index);
    return index;
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
