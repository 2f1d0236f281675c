#pragma once

#include "playlist/Playlist.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <unordered_set>

namespace zentaro {

/// A film or song of which a larger thumbnail is wanted, one by which it is recognised.
struct BetterOrder {
    std::uint64_t id = 0; ///< the entry's
    std::string path;
    double length = 0; ///< ms
    bool isSong = false;
};

/// Has the thumbnails of the films and songs in sight replaced by larger ones in the shape in which they are seen, one
/// by one, and lets those go again that are far away.
class BetterPictures {
public:
    explicit BetterPictures(Playlist& playlist)
        : m_playlist(playlist)
    {
    }

    /// Asks for one; Found() follows, never from within. Without it the thumbnails stay as they are.
    std::function<void(const BetterOrder&)> order;

    /// Whether a picture stands for many entries.
    std::function<bool(const Picture&)> isStandIn = [](const Picture&) { return false; };

    void RowsInSight(int first, int last);
    /// Thumbnails have come, or there is time now.
    void GoOn();
    /// No picture: there is none.
    void Found(std::uint64_t id, Picture picture);

private:
    bool IsWanted(int row) const;
    void DropFarOnes();

    Playlist& m_playlist;
    int m_first = 0;
    int m_last = -1;
    std::uint64_t m_ordered = 0;                 // the entry that is asked for; 0: none
    std::unordered_set<std::uint64_t> m_without; // those of which there is none
    struct Better {
        std::uint64_t id = 0; // the entry's
        Picture standIn;      // that was in its place; empty for a picture that can be had again
    };
    std::deque<Better> m_better; // the others, by age
};

} // namespace zentaro
