#pragma once

#include "app/Background.h"
#include "platform/Drives.h"

#include <functional>
#include <memory>
#include <vector>

namespace zentaro {

/// Asks for the drives beside the window, one question at a time. A drive that spins up answers after many seconds;
/// nobody waits for it, not even at the end.
class DriveQueries {
public:
    DriveQueries(std::shared_ptr<platform::Drives> drives, Post post);

    /// Receives the answers, on the window's thread.
    std::function<void(std::vector<platform::OpticalDrive>)> onFound;

    /// Called, on the window's thread, when a drive or a disc may have come or gone.
    std::function<void()> onChange = [] {};

    /// Nothing while the last question is still out.
    void Ask();
    /// True when the system will tell of changes; else one has to ask now and then.
    bool Watch();

private:
    void Changed();
    void Answered(std::vector<platform::OpticalDrive> drives);

    std::shared_ptr<platform::Drives> m_drives;
    Post m_post;
    bool m_isAsking = false;
    bool m_hasChanged = false; ///< since the question that is out, whose answer may be from before
    /// An answer that comes after the end finds it gone.
    std::shared_ptr<DriveQueries*> m_alive;
};

} // namespace zentaro
