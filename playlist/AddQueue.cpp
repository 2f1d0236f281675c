#include "playlist/AddQueue.h"

#include "base/Words.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace zentaro {

namespace {

constexpr int kBoxesAsTheyCome = 3;

} // namespace

std::string ProgressText(const AddProgress& progress)
{
    if (progress.total == 0)
        return {};
    return Words("Adding %1 of %2", { std::to_string(progress.current), std::to_string(progress.total) });
}

AddQueue::AddQueue(
    Playlist& playlist, InspectionState& inspected, AddQueueHost& host, InspectionRunner& runner, AddQueueLimits limits)
    : m_playlist(playlist)
    , m_inspected(inspected)
    , m_host(host)
    , m_runner(runner)
    , m_limits(limits)
{
}

AddQueue::~AddQueue()
{
    Close();
}

void AddQueue::Add(std::vector<AddRequest> requests, AddTurn turn, const std::vector<std::string>& skipped)
{
    const bool tellsSkipped = m_host.GathersFailures() && !skipped.empty();
    if (m_closed || (requests.empty() && !tellsSkipped))
        return;
    auto& batch = BatchFor(turn);
    batch.size += static_cast<int>(requests.size());
    if (tellsSkipped) {
        batch.size += static_cast<int>(skipped.size());
        batch.failed += static_cast<int>(skipped.size());
        for (const auto& path : skipped)
            batch.gathered.push_back(CannotOpenNotice(path, Words("It is of no type that is known to play.")));
    }
    for (auto& request : requests)
        batch.jobs.push_back({ std::move(request), ++m_lastTicket });
    Advance();
}

AddQueue::Batch& AddQueue::BatchFor(AddTurn turn)
{
    if (turn == AddTurn::AfterOthers) {
        const auto open = std::ranges::find(m_batches, AddTurn::AfterOthers, &Batch::turn);
        if (open != m_batches.end())
            return *open;
    }
    return m_batches.emplace_back(Batch{ turn });
}

void AddQueue::Recalled(std::vector<RecalledFile> files)
{
    m_asked = 0;
    for (auto& file : files) {
        auto* const job = FindJob(file.ticket);
        if (job == nullptr || job->state != Job::State::Asked)
            continue;
        job->state = file.inspection ? Job::State::Done : Job::State::Waiting;
        if (file.inspection)
            job->inspection = std::move(*file.inspection);
    }
    Advance();
}

void AddQueue::Reported(int ticket, Inspection report)
{
    for (auto& batch : m_batches) {
        if (batch.inHand || batch.jobs.empty() || batch.jobs.front().ticket != ticket)
            continue;
        const auto& job = batch.jobs.front();
        const bool mayPlay = job.isWaitedFor && job.request.playNow && report.ok && report.notices.empty();
        if (!mayPlay || job.state != Job::State::Running || m_playlist.IsInPlaylist(job.request.path))
            return;
        auto request = std::move(batch.jobs.front().request);
        batch.jobs.pop_front();
        batch.inHand.reset(
            new InHand{ LoadThumb(m_playlist, m_inspected, m_host, std::move(request), std::move(report)) });
        batch.inHand->awaited = ticket;
        // Nobody waits for the picture: the next file that somebody waits for has its place.
        --m_waitedFor;
        ++m_running;
        batch.inHand->isAdded = true;
        batch.inHand->file.Finish();
        ReportProgress();
        return;
    }
}

void AddQueue::Completed(int ticket, Inspection inspection)
{
    for (auto& batch : m_batches) {
        if (batch.inHand && batch.inHand->awaited == ticket)
            return PictureCame(batch, std::move(inspection));
        const auto job = std::ranges::find(batch.jobs, ticket, &Job::ticket);
        if (job == batch.jobs.end() || job->state != Job::State::Running)
            continue;
        job->state = Job::State::Done;
        job->inspection = std::move(inspection);
        --(job->isWaitedFor ? m_waitedFor : m_running);
        Advance();
        return;
    }
}

void AddQueue::PictureCame(Batch& batch, Inspection inspection)
{
    --m_running;
    batch.inHand->awaited = 0;
    batch.inHand->file.TakePicture(std::move(inspection));
    if (!ShowNextBox(batch))
        Finish(batch);
    Advance();
}

void AddQueue::Cancel()
{
    for (auto& batch : m_batches) {
        DropJobs(batch);
        if (batch.inHand)
            batch.inHand->counts = false;
    }
    Advance();
}

void AddQueue::Close()
{
    m_closed = true;
    for (auto& batch : m_batches) {
        DropJobs(batch);
        if (batch.inHand && batch.inHand->awaited != 0)
            m_runner.Cancel(batch.inHand->awaited);
    }
    m_batches.clear();
}

AddProgress AddQueue::Progress() const
{
    std::size_t open = 0;
    for (const auto& batch : m_batches)
        open += batch.jobs.size() + (batch.inHand && batch.inHand->counts ? 1 : 0);
    return open > 0 ? AddProgress{ m_taken + 1, m_taken + static_cast<int>(open) } : AddProgress{};
}

void AddQueue::Advance()
{
    for (auto& batch : m_batches) {
        // The next inspection is under way before the host is told of the file.
        for (StartAhead(); !batch.inHand && IsFirstReady(batch); StartAhead())
            TakeFirst(batch);
        for (; IsFirstSilent(batch); StartAhead())
            TakeSilently(batch);
    }
    EndOldBatches();
    ReportProgress();
}

AddQueue::Job* AddQueue::FindJob(int ticket)
{
    for (auto& batch : m_batches) {
        // Tickets ascend within a batch.
        const auto job = std::ranges::lower_bound(batch.jobs, ticket, {}, &Job::ticket);
        if (job != batch.jobs.end() && job->ticket == ticket)
            return &*job;
    }
    return nullptr;
}

void AddQueue::AskAhead()
{
    std::vector<FileToRecall> files;
    std::vector<Job*> asked;
    for (auto& batch : m_batches) {
        const auto ahead = std::min(batch.jobs.size(), static_cast<std::size_t>(std::max(1, m_limits.recalled)));
        // Who waits for the first one waits for no answer about it: its inspection looks by itself.
        for (std::size_t at = batch.turn == AddTurn::AtOnce ? 1 : 0; at < ahead && m_asked == 0; ++at) {
            auto& job = batch.jobs[at];
            if (job.state != Job::State::New)
                continue;
            files.push_back({ job.ticket, job.request.path });
            asked.push_back(&job);
        }
    }
    if (files.empty())
        return;
    const bool isAnswered = m_runner.Recall(files);
    m_asked = isAnswered ? static_cast<int>(files.size()) : 0;
    for (auto* const job : asked)
        job->state = isAnswered ? Job::State::Asked : Job::State::Waiting;
}

void AddQueue::StartAhead()
{
    ReportProgress();
    AskAhead();
    for (auto batch = m_batches.rbegin(); batch != m_batches.rend(); ++batch) {
        if (batch->turn == AddTurn::AtOnce)
            StartIn(*batch);
    }
    for (auto& batch : m_batches) {
        if (batch.turn == AddTurn::AfterOthers)
            StartIn(batch);
    }
}

void AddQueue::StartIn(Batch& batch)
{
    const auto window = std::min(static_cast<std::size_t>(std::max(1, m_limits.window)), batch.jobs.size());
    for (std::size_t at = 0; at < window; ++at) {
        const bool isWaitedFor = at == 0 && batch.turn == AddTurn::AtOnce && m_waitedFor < m_limits.waitedFor;
        if (!isWaitedFor && m_running >= std::max(1, m_limits.running))
            return;
        if (!MayStart(batch, at))
            continue;
        auto& job = batch.jobs[at];
        job.state = Job::State::Running;
        job.isWaitedFor = isWaitedFor;
        ++(isWaitedFor ? m_waitedFor : m_running);
        isWaitedFor ? m_runner.StartAtOnce(job.ticket, job.request.path) : m_runner.Start(job.ticket, job.request.path);
    }
}

// The second of two equal paths is a duplicate if the first one can be opened, so it waits for that.
bool AddQueue::MayStart(const Batch& batch, std::size_t at) const
{
    const auto& job = batch.jobs[at];
    const bool isDue =
        job.state == Job::State::Waiting || (job.state == Job::State::New && at == 0 && batch.turn == AddTurn::AtOnce);
    if (!isDue || m_playlist.IsInPlaylist(job.request.path))
        return false;
    const auto end = batch.jobs.begin() + static_cast<std::ptrdiff_t>(at);
    return std::none_of(
        batch.jobs.begin(), end, [&](const Job& earlier) { return earlier.request.path == job.request.path; });
}

bool AddQueue::IsFirstReady(const Batch& batch) const
{
    return !batch.jobs.empty()
        && (batch.jobs.front().state == Job::State::Done || m_playlist.IsInPlaylist(batch.jobs.front().request.path));
}

/// The file before it only waits for its picture, and this one raises no box that could come before that one's.
bool AddQueue::IsFirstSilent(const Batch& batch) const
{
    if (!batch.inHand || batch.inHand->awaited == 0 || batch.jobs.empty())
        return false;
    const auto& job = batch.jobs.front();
    return job.state == Job::State::Done && job.inspection.ok && job.inspection.notices.empty()
        && !m_playlist.IsInPlaylist(job.request.path);
}

void AddQueue::TakeSilently(Batch& batch)
{
    auto job = std::move(batch.jobs.front());
    batch.jobs.pop_front();
    LoadThumb(m_playlist, m_inspected, m_host, std::move(job.request), std::move(job.inspection)).Finish();
    ++m_taken;
}

void AddQueue::TakeFirst(Batch& batch)
{
    auto job = std::move(batch.jobs.front());
    batch.jobs.pop_front();
    if (job.state == Job::State::Running) {
        --(job.isWaitedFor ? m_waitedFor : m_running);
        m_runner.Cancel(job.ticket);
    }
    batch.inHand.reset(
        new InHand{ LoadThumb(m_playlist, m_inspected, m_host, std::move(job.request), std::move(job.inspection)) });
    batch.failed += batch.inHand->file.Outcome() == AddOutcome::Refused ? 1 : 0;
    if (!ShowNextBox(batch))
        Finish(batch);
}

bool AddQueue::ShowNextBox(Batch& batch)
{
    auto& inHand = *batch.inHand;
    while (inHand.shown < inHand.file.Boxes().size()) {
        const auto& notice = inHand.file.Boxes()[inHand.shown++];
        // Nobody waits for a box: what it says is decided.
        inHand.file.TellDecision();
        if (batch.boxes >= kBoxesAsTheyCome || (batch.size > 1 && m_host.GathersFailures())) {
            batch.gathered.push_back(notice);
            continue;
        }
        ++batch.boxes;
        // The file goes with its batch when the queue is closed, and the box then leads nowhere.
        m_host.ShowNotice(notice, [this, &batch, held = std::weak_ptr(batch.inHand)] {
            if (!held.expired())
                BoxClosed(batch);
        });
        return true;
    }
    return false;
}

void AddQueue::BoxClosed(Batch& batch)
{
    if (ShowNextBox(batch))
        return;
    Finish(batch);
    Advance();
}

void AddQueue::Finish(Batch& batch)
{
    const auto inHand = std::exchange(batch.inHand, nullptr);
    if (!inHand->isAdded)
        inHand->file.Finish();
    if (inHand->counts)
        ++m_taken;
}

void AddQueue::DropJobs(Batch& batch)
{
    for (auto& job : std::exchange(batch.jobs, {})) {
        if (job.state == Job::State::Running) {
            --(job.isWaitedFor ? m_waitedFor : m_running);
            m_runner.Cancel(job.ticket);
        }
        if (job.request.onDecided)
            job.request.onDecided(AddOutcome::Dropped);
    }
}

void AddQueue::EndOldBatches()
{
    for (auto at = m_batches.begin(); at != m_batches.end();) {
        if (!at->IsOver()) {
            ++at;
            continue;
        }
        TellGathered(*at);
        at = m_batches.erase(at);
    }
    if (m_batches.empty())
        m_taken = 0;
}

void AddQueue::TellGathered(Batch& batch)
{
    if (batch.gathered.empty())
        return;
    if (batch.failed == 0 || !m_host.GathersFailures()) {
        m_host.ShowNotice(GatherNotices(batch.gathered), [] {});
        return;
    }
    m_failures = std::move(batch.gathered);
    m_host.ShowFailures(batch.failed, batch.size);
}

void AddQueue::ReportProgress()
{
    if (std::exchange(m_reported, Progress()) != Progress())
        m_host.AddProgressChanged();
}

} // namespace zentaro
