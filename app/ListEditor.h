#pragma once

#include "app/Menus.h"
#include "app/PlayerFace.h"
#include "app/SettingsStore.h"
#include "playback/Transport.h"
#include "playlist/Library.h"
#include "playlist/ListArranging.h"

#include <functional>
#include <utility>
#include <vector>

namespace zentaro {

/// What the user does to the entries of the list: takes them out, arranges them, and undoes it. What several entries
/// are marked for is done to these, else to the selected one.
class ListEditor {
public:
    struct Rooms {
        SettingsStore& settings;
        Transport& transport;
        Library& library;
        Menus& menus;
        const PlayerFace& face;
        std::function<void()> onEdited; ///< something is different now
    };
    explicit ListEditor(Rooms rooms)
        : m_rooms(std::move(rooms))
    {
    }

    /// The rows that are meant, in order.
    std::vector<int> ChosenRows() const;
    void Remove();
    void RemoveAll();
    /// One row up for -1, one down for 1.
    void MoveBy(int step);
    /// Before the row of that index; Count() is behind the last.
    void MoveTo(int row);
    void Sort(ListSort by);
    /// They follow what plays, whatever order the entries are played in.
    void PlayNext();
    void Undo();
    void Redo();

private:
    Playlist& Entries() { return m_rooms.library.Entries(); }
    std::int32_t PlayMode() const { return m_rooms.settings.Settings().PlayMode; }
    void Arrange(ListEdit edit, const std::vector<int>& rows);
    void OfferUndo(int removed);
    void Changed();
    void ShowRestored();

    Rooms m_rooms;
};

} // namespace zentaro
