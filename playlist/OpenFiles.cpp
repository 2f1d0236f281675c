#include "playlist/OpenFiles.h"

#include "base/Paths.h"
#include "base/Words.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <unordered_map>
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
    std::string filter = Words("All Supported Formats") + "|";
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

std::vector<std::string> OpenFileResults(const std::vector<std::string>& paths, char separator)
{
    std::vector<std::string> results;
    std::vector<std::size_t> filesIn;
    std::unordered_map<std::string, std::size_t> placeOfFolder;
    for (const auto& path : paths) {
        const auto name = FileNamePart(path, separator);
        const auto folder = path.substr(0, path.size() - name.size());
        const auto [place, isNew] = placeOfFolder.try_emplace(folder, results.size());
        if (isNew) {
            results.push_back(path);
            filesIn.push_back(1);
            continue;
        }
        auto& result = results[place->second];
        // The second file of a folder turns a lone path into the folder and its names.
        if (++filesIn[place->second] == 2)
            result.insert(folder.size(), 1, '\0');
        result.append(1, '\0').append(name);
    }
    return results;
}

std::vector<AddRequest> AddRequests(const std::vector<OpenedFile>& files, char separator, bool playFirst)
{
    std::vector<AddRequest> requests;
    requests.reserve(files.size());
    for (const auto& file : files)
        requests.push_back({ FileNamePart(file.key, separator), file.path, false, playFirst && requests.empty() });
    return requests;
}

} // namespace zentaro
