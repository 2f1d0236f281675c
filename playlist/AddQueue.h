#pragma once

#include "playlist/LoadThumb.h"
#include "playlist/RowPictures.h"

#include <deque>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zentaro {

struct FileToRecall {
    int ticket = 0;
    std::string path;
};

/// What an inspection of before has left of a file that is still the same; without it the file is new.
struct RecalledFile {
    int ticket = 0;
    std::optional<Inspection> inspection;
};

/// Inspects files beside the user interface, several at once. Results come back through AddQueue::Completed on the
/// thread that runs the queue, in any order, never from within Start.
class InspectionRunner {
public:
    virtual ~InspectionRunner() = default;
    /// StartAtOnce for this file will follow soon.
    virtual void Expect(const std::string& /*path*/) { }
    virtual void Start(int ticket, const std::string& path) = 0;
    /// For a file that somebody waits for.
    virtual void StartAtOnce(int ticket, const std::string& path) { Start(ticket, path); }
    /// Looks up which of the files were seen before; AddQueue::Recalled follows. False where nothing is ever known.
    virtual bool Recall(const std::vector<FileToRecall>& /*files*/) { return false; }
    /// Has the thumbnails of files that were seen before; Library::PicturesFound follows.
    virtual void FindPictures(std::vector<PictureOrder> /*orders*/) { }
    /// Whether a film plays: what is started from now on, and nobody waits for, must not cost it a picture.
    virtual void GiveWay(bool /*givesWay*/) { }
    /// Ends a started inspection without a result.
    virtual void Cancel(int ticket) = 0;
};

/// Where the adding stands: the number of the file in hand, from 1, and of all files; both 0 while nothing is added.
struct AddProgress {
    int current = 0;
    int total = 0;
    bool operator==(const AddProgress&) const = default;
};

/// "Adding 12 of 340"; empty while nothing is added.
std::string ProgressText(const AddProgress& progress);

class AddQueueHost : public AddHost {
public:
    virtual void AddProgressChanged() = 0;
};

struct AddQueueLimits {
    /// Inspections at work at the same time, without those that somebody waits for.
    int running = 2;
    /// Files from the one in hand on that may be inspected before their turn.
    int window = 16;
    /// Files that somebody waits for and that may be inspected at the same time.
    int waitedFor = 8;
    /// Files that are looked up together among those seen before.
    int recalled = 200;
};

/// Who else a batch of files has to wait for.
enum class AddTurn {
    AfterOthers, ///< for all that were added this way before
    AtOnce,      ///< for nobody: a person or another start waits to see the first file play
};

/// Adds many files. Their inspections run ahead, but the files of a batch are added in their turn, so that entries,
/// order and boxes are those of adding one by one. Files that are added after others join their batch, which lasts
/// until nothing of it is left; a batch that is added at once stands beside it, and neither waits for the other's boxes
/// or inspections. Of each batch the first three boxes are shown as they come, the others together in one at its end.
class AddQueue {
public:
    AddQueue(Playlist& playlist, InspectionState& inspected, AddQueueHost& host, InspectionRunner& runner,
        AddQueueLimits limits = {});
    ~AddQueue();
    AddQueue(const AddQueue&) = delete;
    AddQueue& operator=(const AddQueue&) = delete;

    /// `skipped`: files that came with them and are no media; told of only where the host gathers failures.
    void Add(std::vector<AddRequest> requests, AddTurn turn = AddTurn::AfterOthers,
        const std::vector<std::string>& skipped = {});
    /// The answer to InspectionRunner::Recall.
    void Recalled(std::vector<RecalledFile> files);
    /// What is known of a running inspection's file before its picture is made; Completed() follows. A file that is to
    /// play at once is added and played on this word, unless it raises boxes: they come before it.
    void Reported(int ticket, Inspection report);
    /// The result for a ticket of the runner; results nobody waits for any more are dropped.
    void Completed(int ticket, Inspection inspection);
    /// Leaves out the files that are not added yet, and shows the boxes that are gathered so far.
    void Cancel();
    /// Cancels for good: no box, no playing, no further file.
    void Close();

    AddProgress Progress() const;
    /// What could not be added when the host was last told of it.
    const std::vector<Notice>& Failures() const { return m_failures; }

private:
    struct Job {
        AddRequest request;
        int ticket = 0;
        enum class State {
            New,
            Asked, // whether it is known
            Waiting,
            Running,
            Done
        } state = State::New;
        bool isWaitedFor = false; // runs beside the limit for the others
        Inspection inspection = {};
    };
    /// A file whose boxes are open, or one that was added on its report and waits for its picture.
    struct InHand {
        LoadThumb file;
        std::size_t shown = 0; // of its boxes
        bool counts = true;    // for the progress: not after a cancel
        int awaited = 0;       // the ticket of the picture; 0 for none
        bool isAdded = false;
    };
    struct Batch {
        AddTurn turn = AddTurn::AfterOthers;
        std::deque<Job> jobs = {};
        std::shared_ptr<InHand> inHand = {};
        int boxes = 0;
        std::vector<Notice> gathered = {};
        int size = 0;   // of all its files
        int failed = 0; // that could not be opened

        bool IsOver() const { return jobs.empty() && !inHand; }
    };

    Batch& BatchFor(AddTurn turn);
    void Advance();
    void AskAhead();
    void StartAhead();
    void StartIn(Batch& batch);
    bool MayStart(const Batch& batch, std::size_t at) const;
    bool IsFirstReady(const Batch& batch) const;
    bool IsFirstSilent(const Batch& batch) const;
    void TakeSilently(Batch& batch);
    void TakeFirst(Batch& batch);
    void PictureCame(Batch& batch, Inspection inspection);
    bool ShowNextBox(Batch& batch);
    void BoxClosed(Batch& batch);
    void Finish(Batch& batch);
    void TellGathered(Batch& batch);
    void DropJobs(Batch& batch);
    void EndOldBatches();
    void ReportProgress();
    Job* FindJob(int ticket);

    Playlist& m_playlist;
    InspectionState& m_inspected;
    AddQueueHost& m_host;
    InspectionRunner& m_runner;
    AddQueueLimits m_limits;
    std::list<Batch> m_batches; // the oldest first
    int m_lastTicket = 0;
    int m_running = 0;
    int m_asked = 0; // looked up just now
    int m_waitedFor = 0;
    int m_taken = 0;
    AddProgress m_reported;
    std::vector<Notice> m_failures;
    bool m_closed = false;
};

} // namespace zentaro
