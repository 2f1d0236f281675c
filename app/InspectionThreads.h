#pragma once

#include "app/Background.h"
#include "app/InspectionJobs.h"
#include "playlist/AddQueue.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zentaro {

/// Inspects each file in a thread of its own, with tools and a working folder of its own, so that the window stays
/// usable and the following files can run ahead. Nobody waits for a thread whose file does not answer, not even the
/// end.
class InspectionThreads : public InspectionRunner {
public:
    /// What all inspections share, asked for in the thread of each and held until it has ended; its tools and working
    /// folder are set here for each one.
    using SharedContext = std::function<std::shared_ptr<const InspectionContext>()>;

    /// `workingFolder`: the folder of this run, with a trailing separator; without one (empty) every inspection of a
    /// file fails that is not among the `known` ones. `context` is called on any thread.
    InspectionThreads(
        SharedContext context, std::string workingFolder, Post post, std::shared_ptr<KnownFiles> known = nullptr);
    ~InspectionThreads() override;

    // These receive the results, on the UI thread.
    std::function<void(int ticket, Inspection report)> onReported = [](int, const Inspection&) {};
    std::function<void(int ticket, Inspection inspection)> onCompleted;
    std::function<void(std::vector<RecalledFile> files)> onRecalled;
    std::function<void(std::vector<FoundPicture> pictures)> onPicturesFound;

    void Expect(const std::string& path) override;
    void Start(int ticket, const std::string& path) override;
    void StartAtOnce(int ticket, const std::string& path) override;
    bool Recall(const std::vector<FileToRecall>& files) override;
    void FindPictures(std::vector<PictureOrder> orders) override;
    void GiveWay(bool givesWay) override { m_givesWay = givesWay; }
    void Cancel(int ticket) override;
    /// Ends everything without a result, in a tenth of a second at most: tools, and whatever else was started and is
    /// waited for, get no time to end by themselves. Nothing is posted any more when it returns.
    void CancelAll();

private:
    std::shared_ptr<InspectionJob> MakeJob(const std::string& path);

    SharedContext m_context;
    std::string m_workingFolder;
    Post m_post;
    std::shared_ptr<KnownFiles> m_known;
    std::shared_ptr<InspectionJob> m_expected;
    /// Shared with the threads, which may outlive this.
    std::shared_ptr<InspectionJobs> m_jobs;
    /// Results that are posted after the end find it gone.
    std::shared_ptr<InspectionThreads*> m_alive;
    int m_started = 0;
    bool m_givesWay = false;
};

} // namespace zentaro
