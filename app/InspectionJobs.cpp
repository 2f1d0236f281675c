#include "app/InspectionJobs.h"

#include "base/DetachedThread.h"
#include "platform/ChildProcess.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <utility>

namespace zentaro {

namespace {

constexpr auto kLastMoment = std::chrono::milliseconds(100);
constexpr auto kWatchRound = std::chrono::milliseconds(200);

} // namespace

void InspectionJobs::Start(const std::shared_ptr<InspectionJob>& job)
{
    const std::lock_guard lock(m_mutex);
    try {
        StartDetached([self = shared_from_this(), job] {
            auto result = job->Inspect([&](Inspection report) { self->Report(job, std::move(report)); });
            self->Finish(job, std::move(result));
        });
        m_jobs.push_back(job);
        if (m_isWatched)
            return;
        StartDetached([self = shared_from_this()] { self->Watch(); });
        m_isWatched = true;
    } catch (const std::system_error& error) {
        // Too many threads. A file that is inspected without being watched is not lost.
        if (m_jobs.empty() || m_jobs.back() != job)
            Say(*job, Refusal(error.what()), false);
    }
}

void InspectionJobs::Adopt(const std::shared_ptr<InspectionJob>& job, int ticket)
{
    const std::lock_guard lock(m_mutex);
    job->ticket = ticket;
    if (auto report = std::exchange(job->report, std::nullopt))
        Say(*job, std::move(*report), true);
    if (auto result = std::exchange(job->result, std::nullopt))
        Say(*job, std::move(*result), false);
}

void InspectionJobs::Cancel(int ticket)
{
    const std::lock_guard lock(m_mutex);
    for (const auto& job : m_jobs)
        job->cancelled = job->cancelled || job->ticket == ticket;
}

void InspectionJobs::CancelAll()
{
    std::unique_lock lock(m_mutex);
    for (const auto& job : m_jobs)
        job->cancelled = true;
    m_changed.notify_all();
    platform::EndStartedProcesses();
    m_changed.wait_for(lock, kLastMoment, [this] { return m_jobs.empty(); });
    if (m_jobs.empty())
        return;
    // One can have started a tool in the moment before.
    platform::EndStartedProcesses();
    std::error_code ignored;
    for (const auto& job : m_jobs)
        std::filesystem::remove_all(job->folder, ignored);
}

/// The mutex is held.
void InspectionJobs::Say(InspectionJob& job, Inspection inspection, bool report)
{
    if (job.ticket != 0)
        m_deliver(job.ticket, std::move(inspection), report);
    else
        (report ? job.report : job.result) = std::move(inspection);
}

void InspectionJobs::Report(const std::shared_ptr<InspectionJob>& job, Inspection report)
{
    const std::lock_guard lock(m_mutex);
    if (!job->cancelled)
        Say(*job, std::move(report), true);
}

/// Whoever cancels waits here: afterwards nothing is delivered.
void InspectionJobs::Finish(const std::shared_ptr<InspectionJob>& job, Inspection inspection)
{
    const std::lock_guard lock(m_mutex);
    if (!job->cancelled)
        Say(*job, std::move(inspection), false);
    std::erase(m_jobs, job);
    m_changed.notify_all();
}

/// Tools have limits of their own. Between them the file itself is read, and a read from a dead drive never ends.
void InspectionJobs::Watch()
{
    std::unique_lock lock(m_mutex);
    const auto isDone = [this] {
        return std::ranges::all_of(m_jobs, [](const auto& job) { return job->cancelled.load(); });
    };
    while (!m_changed.wait_for(lock, kWatchRound, isDone)) {
        for (const auto& job : m_jobs) {
            if (!job->IsStuck())
                continue;
            job->cancelled = true;
            Say(*job, Refusal(kHangsText), false);
        }
    }
    m_isWatched = false;
}

} // namespace zentaro
