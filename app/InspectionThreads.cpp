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
#include <optional>
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
    inspection.pictureFile = outcome.lastPictureFile;
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
    int ticket = 0; // 0: it is not asked for yet, but will be
    std::string path;
    std::string folder; // with a trailing separator; empty when there is no place for one
    SharedContext askForContext;
    std::atomic<std::chrono::milliseconds> limit = InspectionContext().reportLimit.total;
    std::shared_ptr<KnownFiles> known;
    bool givesWay = false;
    std::atomic<bool> cancelled = false;
    /// When its thread last showed that it goes on.
    std::atomic<Clock::time_point> lastSign = Clock::now();
    ToolContext tools;
    // What there is to say before it is asked for.
    std::optional<Inspection> report = {};
    std::optional<Inspection> result = {};

    /// `reportRead` gets what is known before the picture is made.
    Inspection Inspect(const std::function<void(Inspection)>& reportRead)
    {
        if (givesWay)
            platform::GiveWay();
        const auto shared = askForContext();
        limit = shared->reportLimit.total;
        if (auto inspection = Recall(*shared))
            return std::move(*inspection);
        const auto stamp = known ? StampOf(path) : std::nullopt;
        std::error_code ignored;
        // A folder that is not new is not ours to remove.
        if (!std::filesystem::create_directory(folder, ignored))
            return Refusal(Words("No working folder can be made."));
        CancellableRunner runner(tools, cancelled, [this] { lastSign = Clock::now(); });
        auto ownContext = *shared;
        ownContext.tools = &runner;
        ownContext.workingFolder = folder;
        const clsSource* inspected = nullptr;
        ownContext.reportRead = [&] {
            auto good = ToInspection(*inspected, *shared->files);
            good.ok = true;
            reportRead(std::move(good));
            // The film that plays now needs the machine more than its thumbnail.
            platform::GiveWay();
        };
        clsSource source(ownContext);
        inspected = &source;
        source.GetVideoInformation(path);
        auto inspection = ToInspection(source, *shared->files);
        std::filesystem::remove_all(folder, ignored);
        // A stand-in for a picture that could not be made is not to be kept.
        const bool hasPicture = !inspection.pictureFile.empty()
            || (inspection.thumbnail && inspection.thumbnail == shared->defaultAudioPicture);
        const bool isKept = stamp && hasPicture && !cancelled && known->Remember(path, *stamp, inspection);
        inspection.isPictureKept = isKept && !inspection.pictureFile.empty();
        inspection.pictureFile.clear();
        return inspection;
    }

    /// As it was seen before, with its thumbnail.
    std::optional<Inspection> Recall(const InspectionContext& shared) const
    {
        auto inspection = known ? known->Recall(path) : std::nullopt;
        if (!inspection)
            return std::nullopt;
        inspection->isPictureKept = !inspection->pictureFile.empty();
        inspection->thumbnail =
            inspection->isPictureKept ? shared.decodeBytes(inspection->pictureFile) : shared.defaultAudioPicture;
        inspection->pictureFile.clear();
        return inspection->thumbnail ? std::move(inspection) : std::nullopt;
    }

    bool IsStuck() const { return !cancelled && Clock::now() - lastSign.load() >= limit.load(); }
};

/// The inspections at work, and the way of their results.
class InspectionThreads::Jobs : public std::enable_shared_from_this<Jobs> {
public:
    /// `report`: not everything yet.
    using Deliver = std::function<void(int ticket, Inspection, bool report)>;
    explicit Jobs(Deliver deliver)
        : m_deliver(std::move(deliver))
    {
    }

    void Start(const std::shared_ptr<Job>& job)
    {
        const std::lock_guard lock(m_mutex);
        try {
            std::thread([self = shared_from_this(), job] {
                auto result = job->Inspect([&](Inspection report) { self->Report(job, std::move(report)); });
                self->Finish(job, std::move(result));
            }).detach();
            m_jobs.push_back(job);
            if (m_isWatched)
                return;
            std::thread([self = shared_from_this()] { self->Watch(); }).detach();
            m_isWatched = true;
        } catch (const std::system_error& error) {
            // Too many threads. A file that is inspected without being watched is not lost.
            if (m_jobs.empty() || m_jobs.back() != job)
                Say(*job, Refusal(error.what()), false);
        }
    }

    /// The job is asked for now, under this number.
    void Adopt(const std::shared_ptr<Job>& job, int ticket)
    {
        const std::lock_guard lock(m_mutex);
        job->ticket = ticket;
        if (auto report = std::exchange(job->report, std::nullopt))
            Say(*job, std::move(*report), true);
        if (auto result = std::exchange(job->result, std::nullopt))
            Say(*job, std::move(*result), false);
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
    /// The mutex is held.
    void Say(Job& job, Inspection inspection, bool report)
    {
        if (job.ticket != 0)
            m_deliver(job.ticket, std::move(inspection), report);
        else
            (report ? job.report : job.result) = std::move(inspection);
    }

    void Report(const std::shared_ptr<Job>& job, Inspection report)
    {
        const std::lock_guard lock(m_mutex);
        if (!job->cancelled)
            Say(*job, std::move(report), true);
    }

    /// Whoever cancels waits here: afterwards nothing is delivered.
    void Finish(const std::shared_ptr<Job>& job, Inspection inspection)
    {
        const std::lock_guard lock(m_mutex);
        if (!job->cancelled)
            Say(*job, std::move(inspection), false);
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
                Say(*job, Refusal(kHangsText), false);
            }
        }
        m_isWatched = false;
    }

    Deliver m_deliver;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::shared_ptr<Job>> m_jobs;
    bool m_isWatched = false;
};

InspectionThreads::InspectionThreads(
    SharedContext context, std::string workingFolder, Post post, std::shared_ptr<KnownFiles> known)
    : m_context(std::move(context))
    , m_workingFolder(std::move(workingFolder))
    , m_post(std::move(post))
    , m_known(std::move(known))
    , m_alive(std::make_shared<InspectionThreads*>(this))
{
    m_jobs = std::make_shared<Jobs>([alive = m_alive, post = m_post](int ticket, Inspection inspection, bool report) {
        post([alive, ticket, report, result = std::move(inspection)] {
            if (*alive == nullptr)
                return;
            const auto& hear = report ? (*alive)->onReported : (*alive)->onCompleted;
            if (hear)
                hear(ticket, result);
        });
    });
}

InspectionThreads::~InspectionThreads()
{
    *m_alive = nullptr;
    CancelAll();
}

std::shared_ptr<InspectionThreads::Job> InspectionThreads::MakeJob(const std::string& path)
{
    auto job = std::make_shared<Job>();
    job->path = path;
    job->askForContext = m_context;
    job->known = m_known;
    if (!m_workingFolder.empty())
        job->folder = m_workingFolder + "inspect" + std::to_string(++m_started) + m_workingFolder.back();
    return job;
}

void InspectionThreads::Expect(const std::string& path)
{
    m_expected = MakeJob(path);
    m_jobs->Start(m_expected);
}

void InspectionThreads::StartAtOnce(int ticket, const std::string& path)
{
    const auto expected = std::exchange(m_expected, nullptr);
    if (expected && expected->path == path)
        return m_jobs->Adopt(expected, ticket);
    auto job = MakeJob(path);
    job->ticket = ticket;
    m_jobs->Start(job);
}

void InspectionThreads::Start(int ticket, const std::string& path)
{
    auto job = MakeJob(path);
    job->ticket = ticket;
    job->givesWay = m_givesWay;
    m_jobs->Start(job);
}

bool InspectionThreads::Recall(const std::vector<FileToRecall>& files)
{
    if (!m_known)
        return false;
    RunInBackground(m_post, [alive = m_alive, known = m_known, context = m_context, files] {
        std::vector<RecalledFile> recalled;
        const auto shared = context();
        for (const auto& file : files) {
            auto inspection = known->Recall(file.path);
            if (inspection) {
                // Decoding them all would take longest: a row asks for its thumbnail when it comes into sight.
                inspection->isPictureKept = !inspection->pictureFile.empty();
                if (!inspection->isPictureKept)
                    inspection->thumbnail = shared->defaultAudioPicture;
                inspection->pictureFile.clear();
            }
            recalled.push_back({ file.ticket, std::move(inspection) });
        }
        return [alive, recalled = std::move(recalled)] {
            if (*alive != nullptr && (*alive)->onRecalled)
                (*alive)->onRecalled(recalled);
        };
    });
    return true;
}

void InspectionThreads::FindPictures(std::vector<PictureOrder> orders)
{
    RunInBackground(m_post, [alive = m_alive, known = m_known, context = m_context, orders = std::move(orders)] {
        std::vector<FoundPicture> found;
        const auto shared = context();
        for (const auto& order : orders) {
            const auto inspection = known ? known->Recall(order.path) : std::nullopt;
            found.push_back({ order.id, inspection ? shared->decodeBytes(inspection->pictureFile) : Picture() });
        }
        return [alive, found = std::move(found)] {
            if (*alive != nullptr && (*alive)->onPicturesFound)
                (*alive)->onPicturesFound(found);
        };
    });
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
