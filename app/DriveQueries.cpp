#include "app/DriveQueries.h"

#include <utility>

namespace zentaro {

DriveQueries::DriveQueries(std::shared_ptr<platform::Drives> drives, Post post)
    : m_drives(std::move(drives))
    , m_post(std::move(post))
    , m_alive(std::make_shared<DriveQueries*>(this))
{
}

void DriveQueries::Ask()
{
    if (std::exchange(m_isAsking, true))
        return;
    RunInBackground(m_post, [drives = m_drives, alive = std::weak_ptr(m_alive)] {
        return [alive, found = drives->Find()] {
            if (const auto self = alive.lock())
                (*self)->Answered(found);
        };
    });
}

bool DriveQueries::Watch()
{
    return m_drives->Watch([post = m_post, alive = std::weak_ptr(m_alive)] {
        post([alive] {
            if (const auto self = alive.lock())
                (*self)->Changed();
        });
    });
}

void DriveQueries::Changed()
{
    m_hasChanged = m_isAsking;
    if (!m_hasChanged)
        onChange();
}

void DriveQueries::Answered(std::vector<platform::OpticalDrive> drives)
{
    m_isAsking = false;
    if (onFound)
        onFound(std::move(drives));
    if (std::exchange(m_hasChanged, false))
        onChange();
}

} // namespace zentaro
