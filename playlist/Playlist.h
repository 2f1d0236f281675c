#pragma once

#include "base/Picture.h"
#include "playlist/FancyListState.h"
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
};

/// The entries, the list that shows them and the play order, kept in step. Entries are known by their index alone.
class Playlist {
public:
    explicit Playlist(RandomSource random);

    /// What the list control shows; its selection is the current entry.
    FancyListState& List() { return m_list; }
    const FancyListState& List() const { return m_list; }
    PlayOrder& Order() { return m_order; }
    const PlayOrder& Order() const { return m_order; }

    /// Another number after every change of the entries.
    std::uint64_t Revision() const { return m_revision; }

    int Count() const { return static_cast<int>(m_entries.size()); }
    /// Nothing when the index names no entry.
    const PlaylistEntry* EntryAt(int index) const;
    /// The entry's full path; empty when the index names no entry.
    std::string PathAt(int index) const;
    /// The selected entry, nothing while the selection names none.
    const PlaylistEntry* SelectedEntry() const { return EntryAt(m_list.SelectedItem()); }
    /// By exact comparison, letter case included.
    bool IsInPlaylist(const std::string& path) const { return m_paths.count(path) != 0; }

    /// `detail` is the second line of the row. The order is left to BuildOrder.
    void Append(PlaylistEntry entry, std::string detail = {});
    void BuildSequentialOrder() { m_order.BuildSequential(Count(), m_list.SelectedItem()); }
    void BuildShuffleOrder() { m_order.BuildShuffle(Count(), m_list.SelectedItem()); }
    /// The order that the play mode asks for.
    void BuildOrder(std::int32_t playMode);

    /// Takes out the selected entry, and of the order the position of the same number. The order is not renumbered.
    void RemoveSelected();
    void RemoveAll();

    /// A click has selected: the position follows, except in shuffle.
    void OnClick(std::int32_t playMode);
    /// The index that a double click plays, nothing while no row is selected.
    std::optional<int> DoubleClickedIndex() const;
    /// The position follows the selection.
    void MovePositionToSelected() { m_order.SetPosition(m_list.SelectedItem()); }
    /// "Next" and "Previous": moves position and selection, and gives the index to play; nothing when the order is
    /// empty. After removals the index can name no entry.
    std::optional<int> StepNext() { return StepTo(NextPosition(m_order)); }
    std::optional<int> StepPrevious() { return StepTo(PreviousPosition(m_order)); }
    /// An entry has ended: moves position and selection as the answer says.
    EndOfItem OnEndOfItem(std::int32_t playMode, std::int32_t repeatMode);

private:
    std::optional<int> StepTo(std::optional<int> position);

    FancyListState m_list;
    PlayOrder m_order;
    std::vector<PlaylistEntry> m_entries;
    std::unordered_set<std::string> m_paths;
    std::uint64_t m_lastId = 0;
    std::uint64_t m_revision = 0;
};

} // namespace zentaro
