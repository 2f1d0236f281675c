#pragma once

#include "inspect/ConsoleToolRunner.h"
#include "inspect/Inspection.h"
#include "playlist/KnownFiles.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace zentaro {

/// A file that is refused without having been read.
Inspection Refusal(std::string reason);

/// The thumbnail of a file that was seen before.
Picture PictureOf(const Inspection& recalled, const InspectionContext& shared);

/// One inspection. Its thread and the window's thread share it.
struct InspectionJob {
    int ticket = 0; ///< 0: it is not asked for yet, but will be
    std::string path;
    std::string folder; ///< its own, with a trailing separator; empty when there is no place for one
    std::function<std::shared_ptr<const InspectionContext>()> askForContext;
    std::shared_ptr<KnownFiles> known;
    bool givesWay = false; ///< whatever else runs on the machine goes first
    std::atomic<bool> cancelled = false;
    // What there is to say before it is asked for.
    std::optional<Inspection> report = {};
    std::optional<Inspection> result = {};

    /// `reportRead` gets what is known before the picture is made.
    Inspection Inspect(const std::function<void(Inspection)>& reportRead);
    /// It has not shown for too long that it goes on.
    bool IsStuck() const;

private:
    using Clock = std::chrono::steady_clock;

    std::optional<Inspection> Recall(const InspectionContext& shared) const;
    Inspection InspectAnew(const InspectionContext& shared, const std::function<void(Inspection)>& reportRead);

    ToolContext m_tools;
    std::atomic<std::chrono::milliseconds> m_limit = InspectionContext().reportLimit.total;
    std::atomic<Clock::time_point> m_lastSign = Clock::now();
};

} // namespace zentaro
