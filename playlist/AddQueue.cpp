#include "playlist/AddQueue.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace zentaro {

namespace {

constexpr int kBoxesAsTheyCome = 3;

} // namespace

/// The host as the file in hand sees it: boxes are counted, and nothing reaches a closed window.
class AddQueue::BatchHost : public AddHost {
public:
    explicit BatchHost(AddQueue& queue)
        : m_queue(queue)
    {
    }
    void ShowNotice(const Notice& notice) override { m_queue.ShowOrGather(notice); }
    void PlayItem(int index, bool playFlag) override
    {
        if (!m_queue.m_closed)
            m_queue.m_host.PlayItem(index, playFlag);
    }
    std::int32_t PlayMode() const override { return m_queue.m_host.PlayMode(); }
    void InspectionTaken(const Inspection& inspection) override { m_queue.m_host.InspectionTaken(inspection); }
    void EntryAdded() override
    {
        if (!m_queue.m_closed)
            m_queue.m_host.EntryAdded();
    }

private:
    AddQueue& m_queue;
};

std::string ProgressText(const AddProgress& progress)
{
    if (progress.total == 0)
        return {};
    return "Adding " + std::to_string(progress.current) + " of " + std::to_string(progress.total);
}

AddQueue::AddQueue(Playlist& playlist, AddQueueHost& host, InspectionRunner& runner, AddQueueLimits limits)
    : m_playlist(playlist)
    , m_host(host)
    , m_runner(runner)
    , m_limits(limits)
{
}

AddQueue::~AddQueue()
{
    Close();
}

int AddQueue::Add(std::vector<AddRequest> requests)
{
    const int last = m_firstTicket + static_cast<int>(m_jobs.size() + requests.size()) - 1;
    if (m_closed)
        return m_firstTicket - 1;
    m_total += static_cast<int>(requests.size());
    for (auto& request : requests)
        m_jobs.push_back({ std::move(request), JobState::Waiting, {} });
    Advance();
    return last;
}

void AddQueue::Completed(int ticket, Inspection inspection)
{
    const int at = ticket - m_firstTicket;
    if (at < 0 || at >= static_cast<int>(m_jobs.size()))
        return;
    auto& job = m_jobs[static_cast<std::size_t>(at)];
    if (job.state != JobState::Running)
        return;
    job.state = JobState::Done;
    job.inspection = std::move(inspection);
    --m_running;
    Advance();
}

void AddQueue::Cancel()
{
    DropJobs();
    Advance();
}

void AddQueue::Close()
{
    m_closed = true;
    DropJobs();
    m_gathered.clear();
}

AddProgress AddQueue::Progress() const
{
    const bool working = !m_jobs.empty() || (m_advancing && !m_cancelled && m_total > m_taken);
    return working ? AddProgress{ m_taken + 1, m_total } : AddProgress{};
}

void AddQueue::Advance()
{
    // While a file is in hand the next one has to wait, however deep the messages are pumped.
    if (std::exchange(m_advancing, true)) {
        StartAhead();
        ReportProgress();
        return;
    }
    for (;;) {
        StartAhead();
        ReportProgress();
        if (!IsFirstReady())
            break;
        TakeFirst();
    }
    m_advancing = false;
    if (m_jobs.empty())
        FinishBatch();
}

void AddQueue::StartAhead()
{
    // A runner that answers from within Start comes back here.
    if (m_starting)
        return;
    m_starting = true;
    const auto window = static_cast<std::size_t>(std::max(1, m_limits.window));
    for (std::size_t at = 0; at < std::min(window, m_jobs.size()) && m_running < std::max(1, m_limits.running); ++at) {
        if (!MayStart(at))
            continue;
        m_jobs[at].state = JobState::Running;
        ++m_running;
        m_runner.Start(m_firstTicket + static_cast<int>(at), m_jobs[at].request.path);
    }
    m_starting = false;
}

// The second of two equal paths is a duplicate if the first one can be opened, so it waits for that.
bool AddQueue::MayStart(std::size_t at) const
{
    const auto& job = m_jobs[at];
    if (job.state != JobState::Waiting || m_playlist.IsInPlaylist(job.request.path))
        return false;
    const auto end = m_jobs.begin() + static_cast<std::ptrdiff_t>(at);
    return std::none_of(
        m_jobs.begin(), end, [&](const Job& earlier) { return earlier.request.path == job.request.path; });
}

bool AddQueue::IsFirstReady() const
{
    return !m_jobs.empty()
        && (m_jobs.front().state == JobState::Done || m_playlist.IsInPlaylist(m_jobs.front().request.path));
}

void AddQueue::TakeFirst()
{
    Job job = std::move(m_jobs.front());
    m_jobs.pop_front();
    const int ticket = m_firstTicket++;
    m_ticketInHand = ticket;
    if (job.state == JobState::Running) {
        --m_running;
        m_runner.Cancel(ticket);
    }
    m_cancelled = false;
    BatchHost host(*this);
    LoadThumb(m_playlist, host, job.request, [&] { return std::move(job.inspection); });
    ++m_taken;
}

void AddQueue::DropJobs()
{
    const auto dropped = std::exchange(m_jobs, {});
    const int firstTicket = std::exchange(m_firstTicket, m_firstTicket + static_cast<int>(dropped.size()));
    m_running = 0;
    m_total -= static_cast<int>(dropped.size());
    m_cancelled = true;
    for (std::size_t at = 0; at < dropped.size(); ++at) {
        if (dropped[at].state == JobState::Running)
            m_runner.Cancel(firstTicket + static_cast<int>(at));
    }
}

void AddQueue::FinishBatch()
{
    m_total = 0;
    m_taken = 0;
    m_boxes = 0;
    ReportProgress();
    const auto gathered = std::exchange(m_gathered, {});
    if (!gathered.empty() && !m_closed)
        m_host.ShowNotice(GatherNotices(gathered));
}

void AddQueue::ReportProgress()
{
    const auto progress = Progress();
    if (m_closed || progress == m_reported)
        return;
    m_reported = progress;
    m_host.AddProgressChanged(progress);
}

void AddQueue::ShowOrGather(const Notice& notice)
{
    if (m_closed)
        return;
    if (m_boxes >= kBoxesAsTheyCome) {
        m_gathered.push_back(notice);
        return;
    }
    ++m_boxes;
    m_host.ShowNotice(notice);
}

} // namespace zentaro
