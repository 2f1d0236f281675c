#pragma once

#include "platform/CacheStore.h"
#include "playlist/LoadThumb.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace zentaro {

/// By what a file is taken to be the one that was seen before.
struct FileStamp {
    std::int64_t size = 0;    // bytes
    std::int64_t changed = 0; // the system's finest unit
    bool operator==(const FileStamp&) const = default;
};

/// Nothing for what is no regular file.
std::optional<FileStamp> StampOf(const std::string& path);

/// The text that is kept of a file; the thumbnail itself is not part of it, only the file that it was decoded from.
std::string PackInspection(const FileStamp& stamp, const Inspection& inspection);
/// Nothing for a text of another stamp or another version of our reading, or one that is cut short.
std::optional<Inspection> UnpackInspection(std::string_view packed, const FileStamp& stamp);

/// What inspections of before have found out about good files. Of any thread.
class KnownFiles {
public:
    /// `open` is called once, at the first use, and may give null: then nothing is known, ever.
    explicit KnownFiles(std::function<std::unique_ptr<platform::CacheStore>()> open);

    /// Without its thumbnail, which is for the caller to decode. Nothing when the file is new or has changed.
    std::optional<Inspection> Recall(const std::string& path);
    /// Keeps a success; `before` is the stamp from before the inspection. True when it is known from now on.
    bool Remember(const std::string& path, const FileStamp& before, const Inspection& inspection);

private:
    platform::CacheStore* Store();

    std::function<std::unique_ptr<platform::CacheStore>()> m_open;
    std::once_flag m_isOpened;
    std::unique_ptr<platform::CacheStore> m_store;
};

} // namespace zentaro
