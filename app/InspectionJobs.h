#pragma once

#include "app/InspectionJob.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace zentaro {

/// The inspections at work, each in a thread of its own, and the way of their results. The threads may outlive
/// everything else and hold it themselves.
class InspectionJobs : public std::enable_shared_from_this<InspectionJobs> {
public:
    /// `report`: not everything yet. Called on any thread.
    using Deliver = std::function<void(int ticket, Inspection, bool report)>;
    explicit InspectionJobs(Deliver deliver)
        : m_deliver(std::move(deliver))
    {
    }

    void Start(const std::shared_ptr<InspectionJob>& job);
    /// The job is asked for now, under this number.
    void Adopt(const std::shared_ptr<InspectionJob>& job, int ticket);
    /// Afterwards nothing of it is delivered.
    void Cancel(int ticket);
    /// Ends everything, in a tenth of a second at most; what does not end by then is left to itself.
    void CancelAll();

private:
    void Say(InspectionJob& job, Inspection inspection, bool report);
    void Report(const std::shared_ptr<InspectionJob>& job, Inspection report);
    void Finish(const std::shared_ptr<InspectionJob>& job, Inspection inspection);
    void Watch();

    Deliver m_deliver;
    std::mutex m_mutex; // held by whoever changes a job or delivers
    std::condition_variable m_changed;
    std::vector<std::shared_ptr<InspectionJob>> m_jobs;
    bool m_isWatched = false;
};

} // namespace zentaro
