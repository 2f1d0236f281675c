#include "base/Paths.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace zentaro {

std::string FileNamePart(std::string_view path, char separator)
{
    const auto at = path.rfind(separator);
    return std::string(at == std::string_view::npos ? path : path.substr(at + 1));
}

std::string WithTrailingSeparator(std::string path, char separator)
{
    if (path.empty() || path.back() != separator)
        path += separator;
    return path;
}

std::string TidyPath(const std::string& path)
{
    namespace fs = std::filesystem;
    try {
        const fs::path original(std::u8string(path.begin(), path.end()));
        const auto tidy = original.lexically_normal();
        std::error_code error;
        if (!fs::equivalent(original, tidy, error) || error)
            return path;
        const auto text = tidy.u8string();
        return { text.begin(), text.end() };
    } catch (const std::system_error&) {
        return path; // a name that is no text on this system
    }
}

std::string WholePath(const std::string& path)
{
    try {
        // As UTF-8: what the library takes plain text for is not the same on every system.
        const auto text = std::filesystem::absolute(std::u8string(path.begin(), path.end())).u8string();
        return { text.begin(), text.end() };
    } catch (const std::system_error&) {
        return path;
    }
}

std::string LowerExtension(std::string_view path, char separator)
{
    auto name = FileNamePart(path, separator);
    const auto dot = name.rfind('.');
    if (dot == std::string::npos)
        return {};
    name.erase(0, dot + 1);
    std::transform(name.begin(), name.end(), name.begin(),
        [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return name;
}

bool IsSupportedFile(std::string_view path, char separator)
{
    const auto extension = LowerExtension(path, separator);
    return std::find(kMediaExtensions.begin(), kMediaExtensions.end(), extension) != kMediaExtensions.end();
}

} // namespace zentaro
