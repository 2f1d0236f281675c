#pragma once

#include "app/Background.h"
#include "inspect/Inspection.h"
#include "inspect/ModPipes.h"
#include "playlist/AddQueue.h"

#include <atomic>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <thread>

namespace zentaro {

/// Inspects each file in a thread of its own, with tools and a working folder of its own, so that the window stays
/// usable and the following files can run ahead.
class InspectionThreads : public InspectionRunner {
public:
    /// What all inspections share, asked for when the first one starts; its tools and working folder are set here for
    /// each one.
    using SharedContext = std::function<const InspectionContext&()>;

    /// `workingFolder`: the folder of this run, with a trailing separator; without one (empty) every inspection fails.
    InspectionThreads(SharedContext context, std::string workingFolder, Post post);
    /// Ends the running tools and waits for their threads.
    ~InspectionThreads() override;

    /// Receives the results, on the UI thread.
    std::function<void(int ticket, Inspection inspection)> onCompleted;

    void Start(int ticket, const std::string& path) override;
    void Cancel(int ticket) override;
    /// Ends everything without a result. The tools are gone when it returns.
    void CancelAll();

private:
    struct Job {
        int ticket = 0;
        std::string folder; // with a trailing separator
        std::atomic<bool> cancelled = false;
        std::atomic<bool> finished = false;
        ToolContext tools;
        std::thread thread;
    };

    Inspection Inspect(Job& job, InspectionContext context, const std::string& path) const;
    void Deliver(int ticket, Inspection inspection) const;
    void Forget(const std::function<bool(const Job&)>& which);

    SharedContext m_context;
    std::string m_workingFolder;
    Post m_post;
    std::list<Job> m_jobs;
    /// Results that are posted after the end find it gone.
    std::shared_ptr<InspectionThreads*> m_alive;
    int m_started = 0;
};

} // namespace zentaro
