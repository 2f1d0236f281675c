#pragma once

#include "platform/Drives.h"

#include <functional>
#include <memory>
#include <vector>

namespace zentaro {

/// Asks for the drives in a thread of its own, one question at a time. A drive that spins up answers after many
/// seconds; nobody waits for it, not even at the end.
class DriveQueries {
public:
    /// Runs a piece of work on the UI thread, later.
    using Post = std::function<void(std::function<void()>)>;

    DriveQueries(std::shared_ptr<platform::Drives> drives, Post post);

    /// Receives the answers, on the UI thread.
    std::function<void(std::vector<platform::OpticalDrive>)> onFound;

    /// Nothing while the last question is still out.
    void Ask();

private:
    void Answered(std::vector<platform::OpticalDrive> drives);

    std::shared_ptr<platform::Drives> m_drives;
    Post m_post;
    /// An answer that comes after the end finds it gone.
    std::shared_ptr<DriveQueries*> m_alive;
    bool m_isAsking = false;
};

} // namespace zentaro
