#include "app/InspectionJob.h"

#include "base/Words.h"
#include "inspect/clsSource.h"
#include "platform/ChildProcess.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace zentaro {

namespace {

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
    facts.artist = source.Tags().artist;
    facts.album = source.Tags().album;
    facts.song = source.Tags().title;
    facts.number = source.Tags().number;
    facts.year = source.Tags().year;
    for (std::size_t i = 0; i < source.Streams().size() && facts.width == 0; ++i) {
        if (const auto size = source.SizeAsSeen(i); size.width > 0 && size.height > 0) {
            facts.width = size.width;
            facts.height = size.height;
        }
    }
    if (const auto file = files.Facts(source.fileName())) {
        facts.fileSize = file->size;
        facts.modified = file->modified;
    }
    return facts;
}

/// `ok`: the file is known to be good.
Inspection ToInspection(const clsSource& source, InspectionFiles& files, bool ok)
{
    const auto& outcome = source.Outcome();
    Inspection inspection;
    inspection.ok = ok;
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

Inspection Refusal(std::string reason)
{
    Inspection inspection;
    inspection.errorText = std::move(reason);
    return inspection;
}

Picture PictureOf(const Inspection& recalled, const InspectionContext& shared)
{
    return recalled.isPictureKept ? shared.decodeBytes(recalled.pictureFile) : shared.defaultAudioPicture;
}

Inspection InspectionJob::Inspect(const std::function<void(Inspection)>& reportRead)
{
    if (givesWay)
        platform::GiveWay();
    const auto shared = askForContext();
    m_limit = shared->reportLimit.total;
    if (auto inspection = Recall(*shared))
        return std::move(*inspection);
    std::error_code ignored;
    // A folder that is not new is not ours to remove.
    if (!std::filesystem::create_directory(folder, ignored))
        return Refusal(Words("No working folder can be made."));
    auto inspection = InspectAnew(*shared, reportRead);
    std::filesystem::remove_all(folder, ignored);
    return inspection;
}

Inspection InspectionJob::InspectAnew(
    const InspectionContext& shared, const std::function<void(Inspection)>& reportRead)
{
    const auto stamp = known ? StampOf(path) : std::nullopt;
    CancellableRunner runner(m_tools, cancelled, [this] { m_lastSign = Clock::now(); });
    auto ownContext = shared;
    ownContext.tools = &runner;
    ownContext.workingFolder = folder;
    const clsSource* inspected = nullptr;
    ownContext.reportRead = [&] {
        reportRead(ToInspection(*inspected, *shared.files, true));
        // The film that plays now needs the machine more than its thumbnail.
        platform::GiveWay();
    };
    clsSource source(ownContext);
    inspected = &source;
    source.GetVideoInformation(path);
    auto inspection = ToInspection(source, *shared.files, source.Outcome().succeeded);
    // A stand-in for a picture that could not be made is not to be kept.
    const bool hasPicture =
        !inspection.pictureFile.empty() || (inspection.thumbnail && inspection.thumbnail == shared.defaultAudioPicture);
    const bool isKept = stamp && hasPicture && !cancelled && known->Remember(path, *stamp, inspection);
    inspection.isPictureKept = isKept && !inspection.pictureFile.empty();
    inspection.pictureFile.clear();
    return inspection;
}

/// As it was seen before, with its thumbnail.
std::optional<Inspection> InspectionJob::Recall(const InspectionContext& shared) const
{
    auto inspection = known ? known->Recall(path) : std::nullopt;
    if (!inspection)
        return std::nullopt;
    inspection->thumbnail = PictureOf(*inspection, shared);
    inspection->pictureFile.clear();
    return inspection->thumbnail ? std::move(inspection) : std::nullopt;
}

bool InspectionJob::IsStuck() const
{
    return !cancelled && Clock::now() - m_lastSign.load() >= m_limit.load();
}

} // namespace zentaro
