#pragma once

#include "playlist/Playlist.h"

#include <string>
#include <vector>

namespace zentaro {

/// What a list can be sorted by. Equal ones are sorted by name.
enum class ListSort { Name, Length, Date, Size, Folder };

/// "12 files · 3:20:11"; empty for an empty list. The length is that of the entries whose length is known.
std::string SummaryText(const Playlist& playlist);

// Each of these says which rows the list is to consist of, in order, as Playlist::Arrange takes them. `rows`: ascending
// indexes of entries.

/// The rows stand together before the row `to`; Count() is behind the last.
std::vector<int> MovedRows(int count, const std::vector<int>& rows, int to);
/// Without the rows.
std::vector<int> RemainingRows(int count, const std::vector<int>& rows);
/// Names and folders in natural order, the short, the old and the small first; what is in that order already is turned
/// round.
std::vector<int> SortedRows(const Playlist& playlist, ListSort by, char separator);

} // namespace zentaro
