#pragma once

#include "platform/CacheStore.h"
#include "playlist/KnownFiles.h"
#include "playlist/PreviewPlan.h"

#include <functional>
#include <memory>
#include <mutex>
#include <string>

namespace zentaro {

/// The previews that were made before. Of any thread.
class KnownPreviews {
public:
    /// `open`: as KnownFiles.
    explicit KnownPreviews(std::function<std::unique_ptr<platform::CacheStore>()> open);

    /// The bytes of a picture file of that place of the file of that stamp; empty where there is none.
    std::string Recall(const std::string& path, const FileStamp& stamp, const PreviewPlace& place);
    void Remember(
        const std::string& path, const FileStamp& stamp, const PreviewPlace& place, const std::string& picture);

private:
    platform::CacheStore* Store();

    std::function<std::unique_ptr<platform::CacheStore>()> m_open;
    std::once_flag m_isOpened;
    std::unique_ptr<platform::CacheStore> m_store;
};

} // namespace zentaro
