#include "base/Paths.h"

#include <algorithm>

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
