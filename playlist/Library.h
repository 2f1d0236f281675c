#pragma once

#include "inspect/Inspection.h"
#include "playlist/AddQueue.h"
#include "playlist/BetterPictures.h"
#include "playlist/FoundFiles.h"
#include "playlist/OpenFiles.h"

#include <atomic>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zentaro {

/// What the library needs from the player, beside what adding needs.
class LibraryHost : public AddQueueHost {
public:
    /// Asks for files, more than one at will, and returns; `chosen` is called when the dialog is closed, never from
    /// within: one text per folder, as ParseOpenFileResult reads it, none on cancel.
    virtual void AskForFiles(
        const std::string& title, const std::string& filter, std::function<void(std::vector<std::string>)> chosen) = 0;
    /// Runs `work` beside the window and then, on its thread, what `work` has given back.
    virtual void RunInBackground(std::function<std::function<void()>()> work) = 0;
    /// What was found among names beside files to add: subtitles for what plays, entries of lists that are missing.
    virtual void FilesFound(const FoundFiles& found) = 0;
};

/// The entries and every way in which files come to them.
class Library {
public:
    Library(LibraryHost& host, InspectionRunner& inspections, RandomSource random, char separator);
    ~Library();
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    Playlist& Entries() { return m_playlist; }
    const Playlist& Entries() const { return m_playlist; }
    /// About the inspection that was taken over last.
    const InspectionState& Inspected() const { return m_inspected; }

    /// Adds one file at once and, when `playNow`, plays it. `playFlag` asks for full screen; `decided` hears what
    /// became of it. Of a file of a list all entries are added, and the first one counts.
    void LoadThumb(const std::string& title, const std::string& path, bool playFlag, bool playNow,
        std::function<void(AddOutcome)> decided = {});
    /// Asks for files and adds them; the first one plays unless `addOnly`. `then` is called when the dialog is closed.
    void OpenFiles(
        bool addOnly, std::function<void()> then = [] {});
    /// Asks for files to add; where nothing is selected, the first entry will be.
    void AddVideoFile();
    /// Files or folders were dropped: those that are no media are left out.
    void DropOnList(const std::vector<std::string>& paths);
    /// As above, and the first one plays.
    void DropOnVideo(const std::vector<std::string>& paths);

    /// An entry was appended by other hands.
    void TellEntryAdded() { m_host.EntryAdded(); }

    /// As IsMediaFile, for what is dropped or stands in lists.
    void TakeAllMedia(bool on) { m_takesAll = on; }
    // What the inspections have to say.
    void InspectionReported(int ticket, Inspection report);
    void InspectionCompleted(int ticket, Inspection inspection);
    void FilesRecalled(std::vector<RecalledFile> files) { m_adding.Recalled(std::move(files)); }
    void PicturesFound(std::vector<FoundPicture> pictures);
    /// The entries have changed, or another one plays.
    /// Gathered, when LibraryHost::ShowFailures was called last.
    const std::vector<Notice>& Failures() const { return m_adding.Failures(); }
    void UpdatePictures();
    BetterPictures& Better() { return m_better; }
    void CancelAdding() { m_adding.Cancel(); }
    AddProgress Adding() const { return m_adding.Progress(); }
    /// Nothing is added any more, and nobody is asked.
    void Close();

private:
    /// Files dropped on the list; they are added in the order of the drops, each when its folders are read.
    struct Drop {
        bool isRead = false;
        FoundFiles found = {};
    };

    void Ask(bool playFirst, bool selectsFirst, std::function<void()> then);
    void SelectFirst();
    void AddChosen(const std::vector<OpenedFile>& files, bool playFirst, bool selectsFirst);
    /// Adds what the list holds as LoadThumb does its file.
    void LoadList(const AddRequest& list);
    /// Calls `found` with the files among the paths, soon or after a whole disk was read.
    void FindMedia(const std::vector<std::string>& paths, std::function<void(const FoundFiles& found)> found);
    void AddReadDrops();

    LibraryHost& m_host;
    char m_separator;
    bool m_takesAll = false;
    Playlist m_playlist;
    InspectionState m_inspected;
    AddQueue m_adding;
    RowPictures m_pictures;
    BetterPictures m_better{ m_playlist };
    std::list<Drop> m_drops;
    std::shared_ptr<std::atomic<bool>> m_isOpen; // what comes back from elsewhere finds it closed
};

} // namespace zentaro
