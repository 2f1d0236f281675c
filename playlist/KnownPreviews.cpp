#include "playlist/KnownPreviews.h"

#include <cmath>
#include <utility>

namespace zentaro {

namespace {

// To be raised when previews are made in another way.
constexpr const char* kVersion = "2";

/// A file that has changed has other keys; the old ones go with their age.
std::string KeyOf(const std::string& path, const FileStamp& stamp, const PreviewPlace& place)
{
    return path + '\n' + kVersion + ' ' + std::to_string(stamp.size) + ' ' + std::to_string(stamp.changed) + ' '
        + std::to_string(std::llround(place.time)) + (place.isExact ? " exact" : "");
}

} // namespace

KnownPreviews::KnownPreviews(std::function<std::unique_ptr<platform::CacheStore>()> open)
    : m_open(std::move(open))
{
}

std::string KnownPreviews::Recall(const std::string& path, const FileStamp& stamp, const PreviewPlace& place)
{
    auto* const store = Store();
    return store != nullptr ? store->Read(KeyOf(path, stamp, place)).value_or("") : std::string();
}

void KnownPreviews::Remember(
    const std::string& path, const FileStamp& stamp, const PreviewPlace& place, const std::string& picture)
{
    if (auto* const store = Store(); store != nullptr)
        store->Write(KeyOf(path, stamp, place), picture);
}

platform::CacheStore* KnownPreviews::Store()
{
    std::call_once(m_isOpened, [this] { m_store = m_open(); });
    return m_store.get();
}

} // namespace zentaro
