#include "platform/Files.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace zentaro::platform {

namespace {

/// As UTF-8, so that the name does not pass through a code page on Windows.
std::filesystem::path PathOf(const std::string& name)
{
    return std::u8string(name.begin(), name.end());
}

} // namespace

std::optional<std::string> ReadTextFile(const std::string& path, std::size_t limit)
{
    auto read = ReadFileText(path, limit);
    return read.state == FileState::Readable ? std::optional(std::move(read.text)) : std::nullopt;
}

bool MakeFolder(const std::string& folder)
{
    std::error_code ignored;
    std::filesystem::create_directories(PathOf(folder), ignored);
    return std::filesystem::is_directory(PathOf(folder), ignored);
}

void RemoveFolder(const std::string& folder)
{
    const auto path = PathOf(folder);
    // No name, or nothing behind the root: whoever asks for that has lost the folder's name on the way.
    if (!path.has_relative_path())
        return;
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

} // namespace zentaro::platform
