#pragma once

#include "playlist/LoadThumb.h"

#include <deque>
#include <string>
#include <vector>

namespace zentaro {

/// Inspects files beside the user interface, several at once. Results come back through AddQueue::Completed on the
/// thread that runs the queue, in any order, also from within Start.
class InspectionRunner {
public:
    virtual ~InspectionRunner() = default;
    virtual void Start(int ticket, const std::string& path) = 0;
    /// Ends a started inspection without a result.
    virtual void Cancel(int ticket) = 0;
};

/// Where a batch stands: the number of the file in hand, from 1, and of all files; both 0 while nothing is added.
struct AddProgress {
    int current = 0;
    int total = 0;
    bool operator==(const AddProgress&) const = default;
};

/// "Adding 12 of 340"; empty while nothing is added.
std::string ProgressText(const AddProgress& progress);

class AddQueueHost : public AddHost {
public:
    virtual void AddProgressChanged(const AddProgress& progress) = 0;
};

struct AddQueueLimits {
    /// Inspections at work at the same time.
    int running = 2;
    /// Files from the one in hand on that may be inspected before their turn.
    int window = 16;
};

/// Adds many files: their inspections run ahead, but each file is added in its turn, so that entries, order and boxes
/// are those of adding one by one. A batch lasts until nothing is left; files that are added meanwhile join it. Its
/// first three boxes are shown as they come, the others together in one at its end.
/// Every call of the host may pump messages and come back into the queue; only destroying it must wait.
class AddQueue {
public:
    AddQueue(Playlist& playlist, AddQueueHost& host, InspectionRunner& runner, AddQueueLimits limits = {});
    ~AddQueue();
    AddQueue(const AddQueue&) = delete;
    AddQueue& operator=(const AddQueue&) = delete;

    /// The ticket of the last request.
    int Add(std::vector<AddRequest> requests);
    /// False once the request with this ticket was taken into the list, refused or dropped.
    bool IsPending(int ticket) const { return ticket >= m_firstTicket || (m_advancing && ticket == m_ticketInHand); }
    /// True while a file is being taken into the list.
    bool IsTaking() const { return m_advancing; }
    /// The result for a ticket of the runner; results nobody waits for any more are dropped.
    void Completed(int ticket, Inspection inspection);
    /// Leaves out the files that are not added yet, and shows the boxes that are gathered so far.
    void Cancel();
    /// Cancels for good: no box, no playing, no further file.
    void Close();

    AddProgress Progress() const;

private:
    enum class JobState { Waiting, Running, Done };
    struct Job {
        AddRequest request;
        JobState state = JobState::Waiting;
        Inspection inspection;
    };
    class BatchHost;

    void Advance();
    void StartAhead();
    bool MayStart(std::size_t at) const;
    bool IsFirstReady() const;
    void TakeFirst();
    void DropJobs();
    void FinishBatch();
    void ReportProgress();
    void ShowOrGather(const Notice& notice);

    Playlist& m_playlist;
    AddQueueHost& m_host;
    InspectionRunner& m_runner;
    AddQueueLimits m_limits;
    std::deque<Job> m_jobs;
    int m_firstTicket = 0; // of the first job; the others follow in order
    int m_ticketInHand = -1;
    int m_running = 0;
    int m_total = 0;
    int m_taken = 0;
    int m_boxes = 0;
    std::vector<Notice> m_gathered;
    AddProgress m_reported;
    bool m_advancing = false;
    bool m_starting = false;
    bool m_cancelled = false; // the file in hand is the last one of the batch
    bool m_closed = false;
};

} // namespace zentaro
