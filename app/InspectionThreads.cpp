#include "app/InspectionThreads.h"

#include "base/Paths.h"
#include "base/Words.h"
#include "inspect/ConsoleToolRunner.h"
#include "inspect/clsSource.h"
#include "platform/ChildProcess.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace zentaro {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kLastMoment = std::chrono::milliseconds(100);
constexpr auto kWatchRound = std::chrono::milliseconds(200);

/// Starts no further tool for an inspection that nobody waits for.
class CancellableRunner : public ToolRunner {
public:
    /// `sign` is called at least every 40 ms while a tool runs.
    CancellableRunner(ToolContext& tools, const std::atomic<bool>& cancelled, const std::function<void()>& sign)
        : m_runner(tools)
        , m_cancelled(cancelled)
    {
        // A hook that is set before its run starts would be forgotten there.
        tools.pumpMessages = [&tools, &cancelled, sign] {
            sign();
            if (!cancelled)
                return;
            tools.CancelExecute = -1;
            tools.CancelShellWait = -1;
        };
    }

    Result<void> Capture(const ToolCommand& command, const std::string& logFile) override
    {
        if (m_cancelled)
            return Error{ 0, "Cancelled" };
        return m_runner.Capture(command, logFile);
    }

    bool RunAndWait(const ToolCommand& command) override { return !m_cancelled && m_runner.RunAndWait(command); }

private:
    ConsoleToolRunner m_runner;
    const std::atomic<bool>& m_cancelled;
};

MediaFacts FactsOf(const clsSource& source, InspectionFiles& files)
{
    MediaFacts facts;
    facts.duration = static_cast<double>(source.Duration());
    for (const auto& stream : source.Streams()) {
        if (stream.Width > 0 && stream.Height > 0) {
            facts.width = stream.Width;
            facts.height = stream.Height;
            break;
        }
    }
    if (const auto file = files.Facts(source.fileName())) {
        facts.fileSize = file->size;
        facts.modified = file->modified;
    }
    return facts;
}

Inspection Refusal(std::string reason)
{
    Inspection inspection;
    inspection.errorText = std::move(reason);
    return inspection;
}

Inspection ToInspection(const clsSource& source, InspectionFiles& files)
{
    const auto& outcome = source.Outcome();
    Inspection inspection;
    inspection.ok = outcome.succeeded;
    inspection.thumbnail = outcome.lastPicture;
    inspection.mediaInfo = outcome.report;
    inspection.errorText = outcome.error;
    for (const auto& message : outcome.messages) {
        const auto icon = message.icon == MessageIcon::Information ? NoticeIcon::Information : NoticeIcon::Exclamation;
        inspection.notices.push_back({ message.text, icon, message.title });
    }
    if (inspection.ok)
        inspection.facts = FactsOf(source, files);
    return inspection;
}

} // namespace

/// One inspection. Its thread and the window's thread share it.
struct InspectionThreads::Job {
    int ticket = 0;
    std::string path;
    std::string folder; // with a trailing separator; empty when there is no place for one
    SharedContext askForContext;
    std::atomic<std::chrono::milliseconds> limit = InspectionContext().reportLimit.total;
    std::atomic<bool> cancelled = false;
    /// When its thread last showed that it goes on.
    std::atomic<Clock::time_point> lastSign = Clock::now();
    ToolContext tools;

    Inspection Inspect()
    {
        std::error_code ignored;
        // A folder that is not new is not ours to remove.
        if (!std::filesystem::create_directory(folder, ignored))
            return Refusal(Words("No working folder can be made."));
        CancellableRunner runner(tools, cancelled, [this] { lastSign = Clock::now(); });
        const auto context = askForContext();
        limit = context->reportLimit.total;
        auto ownContext = *context;
        ownContext.tools = &runner;
        ownContext.workingFolder = folder;
        clsSource source(ownContext);
        source.GetVideoInformation(path);
        auto inspection = ToInspection(source, *context->files);
        std::filesystem::remove_all(folder, ignored);
        return inspection;
    }

    bool IsStuck() const { return !cancelled && Clock::now() - lastSign.load() >= limit.load(); }
};

/// The inspections at work, and the way of their results.
class InspectionThreads::Jobs : public std::enable_shared_from_this<Jobs> {
public:
    explicit Jobs(std::function<void(int, Inspection)> deliver)
        : m_deliver(std::move(deliver))
    {
    }

    void Start(const std::shared_ptr<Job>& job)
    {
        const std::lock_guard lock(m_mutex);
        try {
            std::thread([self = shared_from_this(), job] { self->Finish(job, job->Inspect()); }).detach();
            m_jobs.push_back(job);
            if (m_isWatched)
                return;
            std::thread([self = shared_from_this()] { self->Watch(); }).detach();
            m_isWatched = true;
        } catch (const std::system_error& error) {
            // Too many threads. A file that is inspected without being watched is not lost.
            if (m_jobs.empty() || m_jobs.back() != job)
                m_deliver(job->ticket, Refusal(error.what()));
        }
    }

    void Cancel(int ticket)
    {
        const std::lock_guard lock(m_mutex);
        for (const auto& job : m_jobs)
            job->cancelled = job->cancelled || job->ticket == ticket;
    }

    void CancelAll()
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

private:
    /// Whoever cancels waits here: afterwards nothing is delivered.
    void Finish(const std::shared_ptr<Job>& job, Inspection inspection)
    {
        const std::lock_guard lock(m_mutex);
        if (!job->cancelled)
            m_deliver(job->ticket, std::move(inspection));
        std::erase(m_jobs, job);
        m_changed.notify_all();
    }

    /// Tools have limits of their own. Between them the file itself is read, and a read from a dead drive never ends.
    void Watch()
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
                m_deliver(job->ticket, Refusal(kHangsText));
            }
        }
        m_isWatched = false;
    }

    std::function<void(int, Inspection)> m_deliver;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::shared_ptr<Job>> m_jobs;
    bool m_isWatched = false;
};

InspectionThreads::InspectionThreads(SharedContext context, std::string workingFolder, Post post)
    : m_context(std::move(context))
    , m_workingFolder(std::move(workingFolder))
    , m_alive(std::make_shared<InspectionThreads*>(this))
{
    m_jobs = std::make_shared<Jobs>([alive = m_alive, post = std::move(post)](int ticket, Inspection inspection) {
        post([alive, ticket, result = std::move(inspection)] {
            if (*alive != nullptr && (*alive)->onCompleted)
                (*alive)->onCompleted(ticket, result);
        });
    });
}

InspectionThreads::~InspectionThreads()
{
    *m_alive = nullptr;
    CancelAll();
}

void InspectionThreads::Start(int ticket, const std::string& path)
{
    auto job = std::make_shared<Job>();
    job->ticket = ticket;
    job->path = path;
    job->askForContext = m_context;
    if (!m_workingFolder.empty())
        job->folder = m_workingFolder + "inspect" + std::to_string(++m_started) + m_workingFolder.back();
    m_jobs->Start(job);
}

void InspectionThreads::Cancel(int ticket)
{
    m_jobs->Cancel(ticket);
}

void InspectionThreads::CancelAll()
{
    m_jobs->CancelAll();
}

} // namespace zentaro
