#include "playlist/KnownFiles.h"

#include <cstring>
#include <filesystem>
#include <system_error>
#include <type_traits>
#include <utility>

namespace zentaro {

namespace {

// To be raised when the same file gives another report, picture or box than before.
constexpr std::uint32_t kVersion = 4;

/// Values one after the other, texts behind their length.
class Packer {
public:
    template <typename Value> Packer& Add(Value value) requires std::is_arithmetic_v<Value> || std::is_enum_v<Value>
    {
        m_text.append(reinterpret_cast<const char*>(&value), sizeof value);
        return *this;
    }
    Packer& Add(const std::string& text)
    {
        Add(static_cast<std::uint32_t>(text.size()));
        m_text += text;
        return *this;
    }
    std::string Take() { return std::move(m_text); }

private:
    std::string m_text;
};

class Unpacker {
public:
    explicit Unpacker(std::string_view text)
        : m_rest(text)
    {
    }

    /// A value that is not there leaves `value` alone.
    template <typename Value> void Get(Value& value) requires std::is_arithmetic_v<Value> || std::is_enum_v<Value>
    {
        if (const auto bytes = Next(sizeof value); !bytes.empty())
            std::memcpy(&value, bytes.data(), sizeof value);
    }
    void Get(std::string& text)
    {
        std::uint32_t length = 0;
        Get(length);
        text = Next(length);
    }
    /// All was there, and nothing else.
    bool IsComplete() const { return m_isGood && m_rest.empty(); }
    bool IsGood() const { return m_isGood; }

private:
    std::string_view Next(std::size_t length)
    {
        m_isGood = m_isGood && length <= m_rest.size();
        if (!m_isGood)
            return {};
        const auto bytes = m_rest.substr(0, length);
        m_rest.remove_prefix(length);
        return bytes;
    }

    std::string_view m_rest;
    bool m_isGood = true;
};

} // namespace

std::optional<FileStamp> StampOf(const std::string& path)
{
    std::error_code problem;
    const std::filesystem::path name(std::u8string(path.begin(), path.end()));
    const auto size = std::filesystem::file_size(name, problem);
    if (problem)
        return std::nullopt;
    const auto changed = std::filesystem::last_write_time(name, problem);
    if (problem)
        return std::nullopt;
    return FileStamp{ static_cast<std::int64_t>(size), static_cast<std::int64_t>(changed.time_since_epoch().count()) };
}

std::string PackInspection(const FileStamp& stamp, const Inspection& inspection)
{
    const auto& facts = inspection.facts;
    Packer packer;
    packer.Add(kVersion).Add(stamp.size).Add(stamp.changed).Add(inspection.mediaInfo).Add(inspection.pictureFile);
    packer.Add(facts.duration).Add(facts.width).Add(facts.height).Add(facts.fileSize);
    packer.Add(facts.artist).Add(facts.album).Add(facts.song).Add(facts.number).Add(facts.year);
    packer.Add(static_cast<std::uint32_t>(inspection.notices.size()));
    for (const auto& notice : inspection.notices)
        packer.Add(notice.text).Add(notice.icon).Add(notice.title);
    return packer.Take();
}

std::optional<Inspection> UnpackInspection(std::string_view packed, const FileStamp& stamp)
{
    Unpacker unpacker(packed);
    std::uint32_t version = 0;
    FileStamp kept;
    unpacker.Get(version);
    unpacker.Get(kept.size);
    unpacker.Get(kept.changed);
    if (version != kVersion || kept != stamp)
        return std::nullopt;
    Inspection inspection;
    inspection.ok = true;
    unpacker.Get(inspection.mediaInfo);
    unpacker.Get(inspection.pictureFile);
    inspection.isPictureKept = !inspection.pictureFile.empty();
    unpacker.Get(inspection.facts.duration);
    unpacker.Get(inspection.facts.width);
    unpacker.Get(inspection.facts.height);
    unpacker.Get(inspection.facts.fileSize);
    unpacker.Get(inspection.facts.artist);
    unpacker.Get(inspection.facts.album);
    unpacker.Get(inspection.facts.song);
    unpacker.Get(inspection.facts.number);
    unpacker.Get(inspection.facts.year);
    std::uint32_t notices = 0;
    unpacker.Get(notices);
    for (; notices > 0 && unpacker.IsGood(); --notices) {
        Notice notice;
        unpacker.Get(notice.text);
        unpacker.Get(notice.icon);
        unpacker.Get(notice.title);
        inspection.notices.push_back(std::move(notice));
    }
    return unpacker.IsComplete() ? std::optional(std::move(inspection)) : std::nullopt;
}

KnownFiles::KnownFiles(std::function<std::unique_ptr<platform::CacheStore>()> open)
    : m_open(std::move(open))
{
}

std::optional<Inspection> KnownFiles::Recall(const std::string& path)
{
    auto* const store = Store();
    const auto stamp = store != nullptr ? StampOf(path) : std::nullopt;
    const auto packed = stamp ? store->Read(path) : std::nullopt;
    return packed ? UnpackInspection(*packed, *stamp) : std::nullopt;
}

bool KnownFiles::Remember(const std::string& path, const FileStamp& before, const Inspection& inspection)
{
    auto* const store = Store();
    // A file that is being written is another one by now.
    return store != nullptr && inspection.ok && StampOf(path) == before
        && store->Write(path, PackInspection(before, inspection));
}

platform::CacheStore* KnownFiles::Store()
{
    std::call_once(m_isOpened, [this] { m_store = m_open(); });
    return m_store.get();
}

} // namespace zentaro
