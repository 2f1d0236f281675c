#pragma once

#include "playlist/FancyListItems.h"
#include "playlist/MediaFacts.h"
#include "playlist/PlayOrder.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace zentaro {

/// What was done to a list.
enum class ListEdit { Add, Remove, RemoveAll, Move, Sort };

/// What an entry has beside its row of the list.
struct PlaylistFile {
    std::string FullPath;
    std::string MediaInfo;
    std::uint64_t Id = 0;
    MediaFacts Facts = {};
    bool IsThumbnailKept = false;
};

/// A list as it is or was: which entries in which order, and the order in which they are played.
struct ListShape {
    std::vector<std::uint64_t> ids;
    PlayOrder::Table order;
    int selected = FancyListItems::kNone;
};

/// One edit, which goes there and back between two shapes.
struct ListStep {
    struct Away {
        FancyListItem row;
        PlaylistFile file;
    };
    /// What the edit has left for the user to go on from.
    struct Left {
        int selected = FancyListItems::kNone;
        int position = PlayOrder::kNone;
        int builds = 0;
        bool operator==(const Left&) const = default;
    };

    ListEdit edit = ListEdit::Add;
    ListShape other;        ///< the shape that the list does not have now
    std::vector<Away> away; ///< the entries that only the other shape has
    Left left;
};

/// The last edits of a list, to be undone and done again.
class ListHistory {
public:
    static constexpr std::size_t kMostSteps = 100;

    /// Files that are added one after the other are one step, until something else is done to the list.
    bool IsAdding() const { return m_isAdding; }
    void EndAdding() { m_isAdding = false; }

    /// What was undone cannot be done again from now on.
    ListStep& Begin(ListEdit edit, ListShape before);
    /// Null while there is nothing to undo, or to do again.
    ListStep* Undoable() { return m_done.empty() ? nullptr : &m_done.back(); }
    ListStep* Redoable() { return m_undone.empty() ? nullptr : &m_undone.back(); }
    bool CanUndo() const { return !m_done.empty(); }
    bool CanRedo() const { return !m_undone.empty(); }
    void Undone();
    void Redone();

private:
    std::deque<ListStep> m_done;
    std::vector<ListStep> m_undone; // the next one last
    bool m_isAdding = false;
};

} // namespace zentaro
