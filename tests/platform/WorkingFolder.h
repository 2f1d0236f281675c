#pragma once

#include "platform/Files.h"
#include "platform/Leftovers.h"

#include <string>

namespace zentaro::platform {

/// A folder of one test that goes with it.
class WorkingFolder {
public:
    WorkingFolder() = default;
    WorkingFolder(const WorkingFolder&) = delete;
    ~WorkingFolder() { RemoveFolder(m_path); }

    const std::string& Path() const { return m_path; }
    std::string operator/(const std::string& name) const { return m_path + PathSeparator() + name; }

private:
    std::string m_path = MakeWorkingFolder();
};

} // namespace zentaro::platform
