#include "app/InspectionThreads.h"

#include "base/Paths.h"
#include "inspect/ConsoleToolRunner.h"
#include "inspect/clsSource.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace zentaro {

namespace {

/// Starts no further tool for an inspection that nobody waits for.
class CancellableRunner : public ToolRunner {
public:
    CancellableRunner(ToolContext& tools, const std::atomic<bool>& cancelled)
        : m_runner(tools)
        , m_cancelled(cancelled)
    {
        // A hook that is set before its run starts would be forgotten there.
        tools.pumpMessages = [&tools, &cancelled] {
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
    if (const auto file = files.Facts(source.fileName()))
        facts.fileSize = file->size;
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

InspectionThreads::InspectionThreads(SharedContext context, std::string workingFolder, Post post)
    : m_context(std::move(context))
    , m_workingFolder(std::move(workingFolder))
    , m_post(std::move(post))
    , m_alive(std::make_shared<InspectionThreads*>(this))
{
}

InspectionThreads::~InspectionThreads()
{
    *m_alive = nullptr;
    CancelAll();
}

void InspectionThreads::Start(int ticket, const std::string& path)
{
    Forget([](const Job& job) { return job.finished.load(); });
    const auto& context = m_context();
    auto& job = m_jobs.emplace_back();
    job.ticket = ticket;
    job.folder = m_workingFolder + "inspect" + std::to_string(++m_started) + context.separator;
    try {
        job.thread = std::thread([this, &job, context, path] {
            auto inspection = Inspect(job, context, path);
            if (!job.cancelled)
                Deliver(job.ticket, std::move(inspection));
            job.finished = true;
        });
    } catch (const std::system_error& error) {
        m_jobs.pop_back();
        Deliver(ticket, Refusal(error.what()));
    }
}

void InspectionThreads::Deliver(int ticket, Inspection inspection) const
{
    m_post([alive = m_alive, ticket, result = std::move(inspection)] {
        if (*alive != nullptr && (*alive)->onCompleted)
            (*alive)->onCompleted(ticket, result);
    });
}

Inspection InspectionThreads::Inspect(Job& job, InspectionContext context, const std::string& path) const
{
    std::error_code ignored;
    // A folder that is not new is not ours to remove.
    if (m_workingFolder.empty() || !std::filesystem::create_directory(job.folder, ignored))
        return Refusal("No working folder can be made.");
    CancellableRunner runner(job.tools, job.cancelled);
    context.tools = &runner;
    context.workingFolder = job.folder;
    clsSource source(context);
    source.GetVideoInformation(path);
    std::filesystem::remove_all(job.folder, ignored);
    return ToInspection(source, *context.files);
}

void InspectionThreads::Cancel(int ticket)
{
    for (auto& job : m_jobs) {
        if (job.ticket == ticket)
            job.cancelled = true;
    }
}

void InspectionThreads::CancelAll()
{
    for (auto& job : m_jobs)
        job.cancelled = true;
    Forget([](const Job&) { return true; });
}

void InspectionThreads::Forget(const std::function<bool(const Job&)>& which)
{
    m_jobs.remove_if([&](Job& job) {
        if (!which(job))
            return false;
        job.thread.join();
        return true;
    });
}

} // namespace zentaro
