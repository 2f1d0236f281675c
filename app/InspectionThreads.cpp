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

InspectionThreads::InspectionThreads(InspectionContext context, std::string workingFolder, Post post)
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
    auto& job = m_jobs.emplace_back();
    job.ticket = ticket;
    job.folder = m_workingFolder + "inspect" + std::to_string(++m_started) + m_context.separator;
    job.thread = std::thread([this, &job, path] {
        auto result = Inspect(job, path);
        if (!job.cancelled) {
            m_post([alive = m_alive, ticket = job.ticket, result = std::move(result)] {
                if (*alive != nullptr && (*alive)->onCompleted)
                    (*alive)->onCompleted(ticket, result);
            });
        }
        job.finished = true;
    });
}

Inspection InspectionThreads::Inspect(Job& job, const std::string& path) const
{
    std::error_code ignored;
    // A folder that is not new is not ours to remove.
    if (m_workingFolder.empty() || !std::filesystem::create_directory(job.folder, ignored)) {
        Inspection refused;
        refused.errorText = "No working folder can be made.";
        return refused;
    }
    CancellableRunner runner(job.tools, job.cancelled);
    auto context = m_context;
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
