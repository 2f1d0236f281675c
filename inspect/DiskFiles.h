#pragma once

#include "inspect/Inspection.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace zentaro {

/// The files of this machine.
class DiskFiles : public InspectionFiles {
public:
    /// `dateText` gives a time, in seconds since 1970, as a text of the user's locale.
    explicit DiskFiles(std::function<std::string(std::int64_t seconds)> dateText);

    std::optional<std::string> Read(const std::string& path, std::size_t limit) override;
    std::optional<FileFacts> Facts(const std::string& path) override;
    FileTrouble Trouble(const std::string& path) override;
    void Remove(const std::string& path) override;

private:
    std::function<std::string(std::int64_t)> m_dateText;
};

} // namespace zentaro
