#include "inspect/DiskFiles.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <utility>

namespace zentaro {

namespace {

/// UTF-8 on every system, whatever the system's own narrow texts are.
std::filesystem::path PathOf(const std::string& text)
{
    return std::u8string(text.begin(), text.end());
}

} // namespace

DiskFiles::DiskFiles(std::function<std::string(std::int64_t seconds)> dateText)
    : m_dateText(std::move(dateText))
{
}

std::optional<std::string> DiskFiles::Read(const std::string& path, std::size_t limit)
{
    std::ifstream file(PathOf(path), std::ios::binary | std::ios::ate);
    if (!file)
        return std::nullopt;
    const auto size = std::min(static_cast<std::size_t>(std::max<std::streamoff>(0, file.tellg())), limit);
    std::string text(size, '\0');
    file.seekg(0);
    file.read(text.data(), static_cast<std::streamsize>(size));
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
}

std::optional<FileFacts> DiskFiles::Facts(const std::string& path)
{
    std::error_code problem;
    const auto name = PathOf(path);
    const auto size = std::filesystem::file_size(name, problem);
    if (problem)
        return std::nullopt;
    FileFacts facts{ static_cast<std::int64_t>(size), "", 0 };
    const auto changed = std::filesystem::last_write_time(name, problem);
    if (!problem) {
        const auto time = std::chrono::file_clock::to_sys(changed).time_since_epoch();
        facts.modified = std::chrono::duration_cast<std::chrono::seconds>(time).count();
        facts.lastModified = m_dateText(facts.modified);
    }
    return facts;
}

FileTrouble DiskFiles::Trouble(const std::string& path)
{
    std::error_code problem;
    const auto name = PathOf(path);
    const auto type = std::filesystem::status(name, problem).type();
    if (type == std::filesystem::file_type::not_found)
        return FileTrouble::Missing;
    if (type == std::filesystem::file_type::directory)
        return FileTrouble::Folder;
    if (type != std::filesystem::file_type::regular) // reading from a pipe could wait for ever
        return problem ? FileTrouble::Unreadable : FileTrouble::None;
    if (std::filesystem::file_size(name, problem) == 0)
        return FileTrouble::Empty;
    std::ifstream file(name, std::ios::binary);
    return file.get() == std::ifstream::traits_type::eof() ? FileTrouble::Unreadable : FileTrouble::None;
}

void DiskFiles::Remove(const std::string& path)
{
    std::error_code ignored;
    std::filesystem::remove(PathOf(path), ignored);
}

} // namespace zentaro
