#include "platform/RuntimeFolder_linux.h"
#include "platform/SystemError_linux.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace zentaro::platform {
namespace {

constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

/// The session's own folder; not one that merely came along in the variables of another user.
FileDescriptor OpenSessionFolder()
{
    const char* path = std::getenv("XDG_RUNTIME_DIR");
    if (!path || path[0] != '/')
        return FileDescriptor();
    FileDescriptor folder(open(path, kFolderFlags));
    struct stat facts { };
    if (!folder || fstat(folder.Number(), &facts) != 0 || facts.st_uid != geteuid())
        return FileDescriptor();
    return folder;
}

Result<FileDescriptor> OpenPrivateFolder(int parent, const std::string& name)
{
    if (mkdirat(parent, name.c_str(), 0700) != 0 && errno != EEXIST)
        return SystemError("Cannot make the folder " + name);
    FileDescriptor folder(openat(parent, name.c_str(), kFolderFlags | O_NOFOLLOW));
    struct stat facts { };
    if (!folder || fstat(folder.Number(), &facts) != 0)
        return SystemError("Cannot open the folder " + name);
    if (!IsPrivateFolder(facts.st_uid, facts.st_mode, geteuid()))
        return Error{ EPERM, "The folder " + name + " is open to other users" };
    return folder;
}

} // namespace

bool IsPrivateFolder(std::uint32_t owner, std::uint32_t mode, std::uint32_t ownUser)
{
    return owner == ownUser && (mode & 077) == 0;
}

std::string TemporaryFolder()
{
    const char* path = std::getenv("TMPDIR");
    if (!path || path[0] != '/' || access(path, W_OK | X_OK) != 0)
        return "/tmp";
    std::string folder = path;
    while (folder.size() > 1 && folder.back() == '/')
        folder.pop_back();
    return folder;
}

Result<FileDescriptor> OpenRuntimeFolder()
{
    if (const auto session = OpenSessionFolder())
        return OpenPrivateFolder(session.Number(), "zentaro");
    return OpenPrivateFolder(AT_FDCWD, TemporaryFolder() + "/zentaro-" + std::to_string(geteuid()));
}

bool LockWithin(int descriptor, std::chrono::milliseconds timeout)
{
    const auto end = std::chrono::steady_clock::now() + timeout;
    while (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return false;
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

} // namespace zentaro::platform
