#include "platform/Leftovers.h"

#include "platform/Files.h"
#include "platform/Files_linux.h"

#include <algorithm>
#include <cctype>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <vector>

namespace zentaro::platform {

namespace {

constexpr std::string_view kFolderPrefix = "zentaro-run-";
constexpr std::string_view kRandomPart = "XXXXXX";

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

std::vector<std::string> NamesIn(const std::string& folder)
{
    std::vector<std::string> names;
    const std::unique_ptr<DIR, CloseFolder> entries(opendir(folder.c_str()));
    while (const dirent* const entry = entries ? readdir(entries.get()) : nullptr)
        names.emplace_back(entry->d_name);
    return names;
}

/// What lies there, locked; nothing when it is somebody else's, of another kind, or in use.
FileDescriptor LockLeftover(const std::string& path, mode_t kind)
{
    constexpr int kFlags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    FileDescriptor found(open(path.c_str(), kFlags));
    struct stat facts { };
    const bool isOurs = found && fstat(found.Number(), &facts) == 0 && (facts.st_mode & S_IFMT) == kind
        && facts.st_uid == geteuid() && flock(found.Number(), LOCK_EX | LOCK_NB) == 0;
    return isOurs ? std::move(found) : FileDescriptor();
}

void RemoveLeftoversIn(const std::string& folder, mode_t kind, const std::function<bool(std::string_view)>& isOurName)
{
    for (const auto& name : NamesIn(folder)) {
        const auto path = folder + "/" + name;
        const auto leftover = isOurName(name) ? LockLeftover(path, kind) : FileDescriptor();
        if (leftover)
            RemoveFolder(path);
    }
}

bool IsWorkingFolder(std::string_view name)
{
    return name.starts_with(kFolderPrefix) && name.size() == kFolderPrefix.size() + kRandomPart.size();
}

bool IsReplacement(std::string_view name)
{
    if (!name.starts_with(kReplacementPrefix) || name.size() == kReplacementPrefix.size())
        return false;
    name.remove_prefix(kReplacementPrefix.size());
    return std::all_of(name.begin(), name.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

/// Empty when none can be made there.
std::string MakeFolderIn(const std::string& parent)
{
    static std::vector<FileDescriptor> locks; // the end of the process opens them
    for (int i = 0; i < 10; ++i) {
        auto name = parent + "/" + std::string(kFolderPrefix) + std::string(kRandomPart);
        if (mkdtemp(name.data()) == nullptr)
            break;
        FileDescriptor folder(open(name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (LockNew(folder.Number())) {
            locks.push_back(std::move(folder));
            return name;
        }
    }
    return {};
}

} // namespace

std::string MakeWorkingFolder()
{
    const auto parent = TemporaryFolder();
    const auto folder = MakeFolderIn(parent);
    return folder.empty() && parent != "/tmp" ? MakeFolderIn("/tmp") : folder;
}

void RemoveLeftovers(const std::string& replacedIn)
{
    RemoveLeftoversIn(TemporaryFolder(), S_IFDIR, IsWorkingFolder);
    RemoveLeftoversIn(replacedIn, S_IFREG, IsReplacement);
}

} // namespace zentaro::platform
