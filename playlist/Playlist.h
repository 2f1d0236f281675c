#pragma once

#include "base/Picture.h"
#include "playlist/FancyListItems.h"
#include "playlist/ListHistory.h"
#include "playlist/MediaFacts.h"
#include "playlist/PlayOrder.h"
#include "playlist/Sequencing.h"

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace zentaro {

/// One row of the playlist. `MediaInfo` is the inspection's report.
struct PlaylistEntry {
    std::string Title;
    std::string FullPath;
    Picture Thumbnail;
    std::string MediaInfo;
    std::uint64_t Id = 0; ///< given by Playlist::Append, from 1; no other entry of this run has it
    MediaFacts Facts = {};
    bool IsThumbnailKept = false; ///< it can be had again at any time, and is missing here while it is not in sight
};

/// A key that moves the selection.
enum class SelectionMove { Up, Down, ToFirst, ToLast };

/// The entries, the list that shows them and the play order, kept in step. Entries are known by their index alone.
class Playlist {
public:
    explicit Playlist(RandomSource random);

    /// What the list control shows: titles and thumbnails; its selection is the current entry. Entries come and go only
    /// through the operations below.
    FancyListItems& List() { return m_list; }
    const FancyListItems& List() const { return m_list; }
    PlayOrder& Order() { return m_order; }
    const PlayOrder& Order() const { return m_order; }

    /// Another number after every change of the entries.
    std::uint64_t Revision() const { return m_revision; }

    int Count() const { return static_cast<int>(m_files.size()); }
    /// Nothing when the index names no entry.
    std::optional<PlaylistEntry> EntryAt(int index) const;
    /// The entry's full path; empty when the index names no entry.
    std::string PathAt(int index) const;
    /// Only for 0 <= index < Count().
    const MediaFacts& FactsAt(int index) const { return m_files[static_cast<std::size_t>(index)].Facts; }
    /// As above.
    bool IsThumbnailKept(int index) const { return m_files[static_cast<std::size_t>(index)].IsThumbnailKept; }
    /// 0 when the index names no entry.
    std::uint64_t IdAt(int index) const { return IsEntry(index) ? m_files[static_cast<std::size_t>(index)].Id : 0; }
    /// The index of the entry with this id.
    std::optional<int> IndexOf(std::uint64_t id) const;
    /// The index of the entry with this path.
    std::optional<int> IndexOfPath(const std::string& path) const;
    /// The selected entry, nothing while the selection names none.
    std::optional<PlaylistEntry> SelectedEntry() const { return EntryAt(m_list.SelectedItem()); }
    /// By exact comparison, letter case included.
    bool IsInPlaylist(const std::string& path) const { return m_paths.count(path) != 0; }

    /// Gives the entry an id, and returns it. `detail` is the second line of the row. The order is left to BuildOrder.
    std::uint64_t Append(PlaylistEntry entry, std::string detail = {});
    /// Nothing where no entry has this id.
    void SetThumbnail(std::uint64_t id, Picture picture, bool isKept);
    void BuildSequentialOrder() { m_order.BuildSequential(Count(), m_list.SelectedItem()); }
    void BuildShuffleOrder() { m_order.BuildShuffle(Count(), m_list.SelectedItem()); }
    /// The order that the play mode asks for.
    void BuildOrder(std::int32_t playMode);

    /// The list consists of these rows from now on, in this order; the selection stays with its entry, else it goes to
    /// the next one, and the order is built anew.
    void Arrange(ListEdit edit, const std::vector<int>& rows, std::int32_t playMode);
    /// The last edit, or the last one undone, is undone or done again. Where nothing has followed it, order and
    /// selection are what they were; else the order is built anew. False when there is nothing to undo or redo.
    bool Undo(std::int32_t playMode);
    bool Redo(std::int32_t playMode);
    /// What was done to the list.
    ListHistory& Edits() { return m_edits; }
    const ListHistory& Edits() const { return m_edits; }

    /// Takes out the selected entry, and of the order the position of the same number. The order is not renumbered.
    void RemoveSelected();
    void RemoveAll();

    /// A click has selected: the position follows, except in shuffle.
    void OnClick(std::int32_t playMode);
    /// A key of the list: selects the entry above, below, first or last, has it brought into sight, and is a click on
    /// it besides. True when another entry is selected now.
    bool MoveSelection(SelectionMove move, std::int32_t playMode);
    /// The index that a double click plays, nothing while no row is selected.
    std::optional<int> DoubleClickedIndex() const;
    /// The position follows the selection.
    void MovePositionToSelected() { m_order.SetPosition(m_list.SelectedItem()); }
    /// Position and selection go to this entry; for none, which was taken out, they go before what stands in its place.
    void StandOn(std::optional<int> index);
    /// As StepNext and StepPrevious, but the index is the one that the order names.
    std::optional<int> StepInOrder(bool back);
    /// "Next" and "Previous": moves position and selection, and gives the index to play; nothing when the order is
    /// empty. After removals the index can name no entry.
    std::optional<int> StepNext() { return StepTo(NextPosition(m_order)); }
    std::optional<int> StepPrevious() { return StepTo(PreviousPosition(m_order)); }
    /// An entry has ended: moves position and selection as the answer says.
    EndOfItem OnEndOfItem(std::int32_t playMode, std::int32_t repeatMode);
    /// The index of the entry that would play if the present one ended now, nothing where none would. `present` stands
    /// for the one that the order names at its position.
    std::optional<int> FollowsAtEnd(std::int32_t playMode, std::int32_t repeatMode, std::optional<int> present);

private:
    ListShape Shape() const;
    ListStep::Left Left() const;
    void TakeShape(ListStep& step, std::int32_t playMode);
    /// The entries with these ids, from the list and from `away`, which keeps the rest of the list.
    void TakeEntries(const std::vector<std::uint64_t>& ids, std::vector<ListStep::Away>& away);
    bool IsEntry(int index) const { return index >= 0 && index < Count(); }
    std::optional<int> StepTo(std::optional<int> position);
    std::optional<int> PositionOf(int index);

    FancyListItems m_list;
    PlayOrder m_order;
    ListHistory m_edits;
    std::vector<PlaylistFile> m_files; // the same indexes as the rows of m_list
    std::unordered_set<std::string> m_paths;
    std::uint64_t m_lastId = 0;
    std::uint64_t m_revision = 0;
};

} // namespace zentaro
