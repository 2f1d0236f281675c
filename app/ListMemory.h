#pragma once

#include "playlist/Playlist.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zentaro {

/// A list as it is kept over the end of the player.
struct RememberedList {
    struct Entry {
        PlaylistEntry entry; ///< without its picture
        std::string detail;
    };
    std::vector<Entry> entries;
    std::vector<int> order; ///< empty while the order is that of the list
    int position = -1;
    int selected = -1;
    std::int32_t playMode = 0;

    bool IsEmpty() const { return entries.empty(); }
};

/// What is kept of the list: entries that `isKept` is false for are left out.
RememberedList Remembered(
    Playlist& playlist, std::int32_t playMode, const std::function<bool(const std::string& path)>& isKept);
std::string FormatList(const RememberedList& list);
/// Reads what FormatList has written; what is damaged is left out, and an order that does not fit the entries.
RememberedList ParseList(std::string_view text);

/// Puts the remembered entries behind those that are there, those of them that are not. Into an empty list they come
/// with selection and order, the order only in the play mode that it was made for.
void Restore(const RememberedList& list, Playlist& playlist, std::int32_t playMode);

} // namespace zentaro
