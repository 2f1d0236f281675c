#include "app/InspectionThreads.h"

#include <utility>

namespace zentaro {

InspectionThreads::InspectionThreads(
    SharedContext context, std::string workingFolder, Post post, std::shared_ptr<KnownFiles> known)
    : m_context(std::move(context))
    , m_workingFolder(std::move(workingFolder))
    , m_post(std::move(post))
    , m_known(std::move(known))
    , m_alive(std::make_shared<InspectionThreads*>(this))
{
    m_jobs = std::make_shared<InspectionJobs>(
        [alive = m_alive, post = m_post](int ticket, Inspection inspection, bool report) {
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

std::shared_ptr<InspectionJob> InspectionThreads::MakeJob(const std::string& path)
{
    auto job = std::make_shared<InspectionJob>();
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
            found.push_back({ order.id, inspection ? PictureOf(*inspection, *shared) : Picture() });
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
