#pragma once

#include "base/Picture.h"
#include "playlist/Notice.h"
#include "playlist/Playlist.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zentaro {

/// What the second line of a row tells; 0 or less where unknown.
struct MediaFacts {
    double duration = 0;       // seconds
    int width = 0;             // pixels
    int height = 0;            // pixels
    std::int64_t fileSize = 0; // bytes
};

/// "1:02:05 · 1280 × 720 · 12.3 MB", without the parts that are unknown.
std::string DetailText(const MediaFacts& facts);

/// What an inspection leaves behind, as far as the playlist needs it.
struct Inspection {
    bool ok = false;
    Picture thumbnail;
    std::string mediaInfo;
    /// The reason while not ok; may be empty.
    std::string errorText;
    /// Boxes that the inspection itself raises, in order.
    std::vector<Notice> notices;
    MediaFacts facts;
};

/// One file to be added. `playFlag` goes on to PlayItem unchanged.
struct AddRequest {
    std::string title;
    std::string path;
    bool playFlag = false;
    bool playNow = false;
};

/// What adding needs from the player.
class AddHost {
public:
    virtual ~AddHost() = default;
    /// Shows a box and returns when it is closed.
    virtual void ShowNotice(const Notice& notice) = 0;
    virtual void PlayItem(int index, bool playFlag) = 0;
    virtual std::int32_t PlayMode() const = 0;
    /// This inspection counts from now on, whenever it ran.
    virtual void InspectionTaken(const Inspection& inspection) = 0;
    /// A new entry stands in the list and the order: menus can be brought in line.
    virtual void EntryAdded() = 0;
};

enum class AddOutcome { Added, Duplicate, Refused };

/// Adds one file and plays it when the request says so. `inspect` is not called for a path that the playlist holds; it
/// may pump messages. A duplicate adds nothing, but plays the last entry of the list all the same.
AddOutcome LoadThumb(
    Playlist& playlist, AddHost& host, const AddRequest& request, const std::function<Inspection()>& inspect);

} // namespace zentaro
