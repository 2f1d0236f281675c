#include "platform/Leftovers.h"

#include "platform/Files.h"
#include "platform/System_windows.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <random>
#include <string_view>
#include <vector>
#include <windows.h>

namespace zentaro::platform {

namespace {

std::vector<WIN32_FIND_DATAA> EntriesOf(const std::string& folder)
{
    std::vector<WIN32_FIND_DATAA> entries;
    WIN32_FIND_DATAA entry;
    const HANDLE search = FindFirstFileA((folder + "\\" + std::string(kOurPrefix) + "*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return entries;
    do {
        entries.push_back(entry);
    } while (FindNextFileA(search, &entry));
    FindClose(search);
    return entries;
}

/// Whether the name is ours, a number, and that end.
bool IsOurName(std::string_view name, std::string_view end)
{
    if (!name.starts_with(kOurPrefix) || !name.ends_with(end) || name.size() <= kOurPrefix.size() + end.size())
        return false;
    name.remove_prefix(kOurPrefix.size());
    name.remove_suffix(end.size());
    return std::all_of(name.begin(), name.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

void RemoveLeftoversIn(const std::string& folder, DWORD kind, std::string_view end)
{
    for (const auto& entry : EntriesOf(folder)) {
        const std::string name = entry.cFileName;
        constexpr DWORD kKinds = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
        if ((entry.dwFileAttributes & kKinds) == kind && IsOurName(name, end) && !IsInUse(name))
            RemoveFolder(folder + "\\" + name);
    }
}

std::string TemporaryFolder()
{
    char folder[MAX_PATH + 1] = {};
    return GetTempPathA(sizeof folder, folder) == 0 ? std::string() : folder;
}

} // namespace

std::string MakeWorkingFolder()
{
    static std::vector<SystemObject> marks; // the end of the process takes them away
    const auto parent = TemporaryFolder();
    std::random_device random;
    for (int i = 0; i < 100 && !parent.empty(); ++i) {
        const auto name = std::string(kOurPrefix) + std::to_string(random());
        auto mark = MarkInUse(name);
        if (CreateDirectoryA((parent + name).c_str(), nullptr)) {
            marks.push_back(std::move(mark));
            return parent + name;
        }
        if (GetLastError() != ERROR_ALREADY_EXISTS)
            break;
    }
    return "";
}

void RemoveLeftovers(const std::string& replacedIn)
{
    if (const auto folder = TemporaryFolder(); !folder.empty())
        RemoveLeftoversIn(folder, FILE_ATTRIBUTE_DIRECTORY, "");
    RemoveLeftoversIn(replacedIn, 0, kReplacementSuffix);
}

} // namespace zentaro::platform
