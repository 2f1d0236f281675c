#pragma once

#include "base/Picture.h"
#include "inspect/Inspection.h"
#include "playlist/MediaFacts.h"
#include "playlist/Notice.h"
#include "playlist/Playlist.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zentaro {

/// "1:02:05" or "2:05"; `length` in seconds.
std::string DurationText(double length);

/// The second line of a row: "1:02:05 · 1280 × 720 · 12.3 MB", for music "Artist · Album · 2:05 · 3.1 MB", without the
/// parts that are unknown.
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
    /// The file that the thumbnail was decoded from; empty for none.
    std::string pictureFile;
    /// The thumbnail can be had again at any time, and need not be here.
    bool isPictureKept = false;
};

enum class AddOutcome {
    Added,
    Duplicate, ///< the playlist holds it already; its last entry plays, when one was to be played
    Refused,
    Dropped, ///< the adding was cancelled before
};

/// One file to be added. `playFlag` goes on to PlayItem unchanged.
struct AddRequest {
    std::string title;
    std::string path;
    bool playFlag = false;
    bool playNow = false;
    bool selectsFirst = false; ///< the first entry is to be selected where nothing is
    /// Called once, as soon as it is known; never later than the first box that the file raises.
    std::function<void(AddOutcome)> onDecided = {};
};

/// For a file that could not be read.
Notice CannotOpenNotice(const std::string& path, const std::string& reason);

/// What adding needs from the player.
class AddHost {
public:
    virtual ~AddHost() = default;
    /// Shows a box and returns; `closed` is called when it is closed, never from within.
    virtual void ShowNotice(const Notice& notice, std::function<void()> closed) = 0;
    virtual void PlayItem(int index, bool playFlag) = 0;
    virtual std::int32_t PlayMode() const = 0;
    /// A file that is listed plays where it stands, and nobody is told so.
    virtual bool PlaysListedInPlace() const { return false; }
    /// What could not be added, of more files than one, is gathered instead of shown in a row of boxes.
    virtual bool GathersFailures() const { return false; }
    /// That is to be told now; AddQueue::Failures() says what it is.
    virtual void ShowFailures(int /*failed*/, int /*total*/) { }
    /// A new entry stands in the list and the order: menus can be brought in line.
    virtual void EntryAdded() = 0;
    /// An entry that stands in the list has got another picture.
    virtual void ThumbnailChanged() { }
};

/// Takes one inspected file into the playlist, with the boxes that belong to it, and plays it when the request says so.
class LoadThumb {
public:
    /// The inspection counts from now on, whenever it ran; not for a path that the playlist holds.
    LoadThumb(Playlist& playlist, InspectionState& inspected, AddHost& host, AddRequest request, Inspection inspection);

    /// The boxes to be shown, one after the other, before Finish().
    const std::vector<Notice>& Boxes() const { return m_boxes; }
    AddOutcome Outcome() const { return m_outcome; }
    /// Tells whoever waits for the outcome, once.
    void TellDecision();
    /// Adds and plays. A duplicate adds nothing, but plays the last entry of the list all the same.
    void Finish();
    /// After Finish(), where the inspection was a mere report: the entry gets its picture, and there are boxes anew.
    void TakePicture(Inspection inspection);

private:
    void PlayLastEntry();

    Playlist& m_playlist;
    InspectionState& m_inspected;
    AddHost& m_host;
    AddRequest m_request;
    Inspection m_inspection;
    AddOutcome m_outcome = AddOutcome::Added;
    std::uint64_t m_entry = 0; // its id, once added
    std::vector<Notice> m_boxes;
};

} // namespace zentaro
