#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace zentaro::platform {

/// Values by key in a file that all players of a user share: what can be found out again, kept to save the time. A
/// value that was not read as it was written counts as missing, a file that is damaged is thrown away, and one that
/// cannot be read or written is an empty one: nobody hears of a failure. Of any thread. Calls take milliseconds, and a
/// slow disk's time.
class CacheStore {
public:
    /// `file`: in a folder that is made when it is missing. `limit`: bytes that the values may take; those that were
    /// written longest ago go first. Null where the system has no database.
    static std::unique_ptr<CacheStore> Open(const std::string& file, std::int64_t limit);
    virtual ~CacheStore() = default;

    virtual std::optional<std::string> Read(const std::string& key) = 0;
    /// True when it can be read from now on.
    virtual bool Write(const std::string& key, const std::string& value) = 0;
};

} // namespace zentaro::platform
