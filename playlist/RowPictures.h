#pragma once

#include "playlist/Playlist.h"

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

namespace zentaro {

/// A thumbnail that is to be had again.
struct PictureOrder {
    std::uint64_t id = 0; ///< the entry's
    std::string path;
};

struct FoundPicture {
    std::uint64_t id = 0;
    Picture picture;
};

/// Which rows have their thumbnails in memory: those in sight, those around them, and the one that plays. Of the others
/// only those that can be had from nowhere else stay.
class RowPictures {
public:
    /// `order` asks for thumbnails, the most wanted first; Found() follows for all of them together.
    RowPictures(Playlist& playlist, std::function<void(std::vector<PictureOrder>)> order);

    /// What the list shows now.
    void RowsInSight(int first, int last);
    void Found(std::vector<FoundPicture> pictures);
    /// An entry has come, or another one plays.
    void EntriesChanged();

private:
    void OrderMissing();
    void OrderRow(int row, std::vector<PictureOrder>& orders);
    void DropFarOnes();

    Playlist& m_playlist;
    std::function<void(std::vector<PictureOrder>)> m_order;
    std::unordered_set<std::uint64_t> m_ordered;
    std::vector<std::uint64_t> m_loaded; // entries whose thumbnails are here and could go
    int m_first = 0;
    int m_last = -1;
    int m_seen = 0; // rows from the top that were looked at when they came
};

} // namespace zentaro
