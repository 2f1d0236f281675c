#include "playlist/OpenFiles.h"

#include "base/Paths.h"

#include <algorithm>
#include <cctype>
#include <unordered_set>

namespace zentaro {

namespace {

std::string UpperCase(std::string_view text)
{
    std::string upper(text);
    std::transform(
        upper.begin(), upper.end(), upper.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return upper;
}

OpenedFile SingleFile(std::string_view path, char separator)
{
    const auto at = path.find(separator);
    return { std::string(at == std::string_view::npos ? path : path.substr(at + 1)), std::string(path) };
}

} // namespace

std::string OpenDialogFilter()
{
    std::string filter = "All Supported Formats|";
    for (const auto extension : kMediaExtensions)
        filter.append("*.").append(extension).append(";");
    filter.back() = '|';
    for (const auto extension : kMediaExtensions)
        filter.append(UpperCase(extension)).append("|*.").append(extension).append("|");
    filter.pop_back();
    return filter;
}

Result<std::vector<OpenedFile>> ParseOpenFileResult(std::string_view result, char separator)
{
    const auto nul = result.find('\0');
    if (nul == std::string_view::npos)
        return std::vector{ SingleFile(result, separator) };

    const auto folder = WithTrailingSeparator(std::string(result.substr(0, nul)), separator);
    std::vector<OpenedFile> files;
    std::unordered_set<std::string> names;
    for (auto rest = result.substr(nul + 1);;) {
        const auto end = rest.find('\0');
        std::string name(rest.substr(0, end));
        if (!names.insert(name).second)
            return Error{ 0, "The file name " + name + " was chosen twice." };
        files.push_back({ name, folder + name });
        if (end == std::string_view::npos)
            return files;
        rest.remove_prefix(end + 1);
    }
}

} // namespace zentaro
