#include "platform/FileDescriptor_linux.h"
#include "platform/SystemError_linux.h"
#include "platform/TextFile.h"

#include <algorithm>
#include <climits>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>

namespace zentaro::platform {
namespace {

bool HasNul(const std::string& path)
{
    return path.find('\0') != std::string::npos;
}

std::string FolderPart(const std::string& path)
{
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "" : path.substr(0, slash + 1);
}

/// What a link names in the end, whether it exists or not.
std::string FollowLinks(std::string path)
{
    constexpr int kMostLinks = 40; // as the system
    for (int i = 0; i < kMostLinks; ++i) {
        char target[PATH_MAX];
        const auto size = readlink(path.c_str(), target, sizeof target);
        if (size <= 0)
            break;
        const std::string next(target, static_cast<std::size_t>(size));
        path = next.front() == '/' ? next : FolderPart(path) + next;
    }
    return path;
}

Result<void> WriteAll(int file, const std::string& text)
{
    for (std::size_t done = 0; done < text.size();) {
        const auto size = write(file, text.data() + done, text.size() - done);
        if (size < 0 && errno != EINTR)
            return SystemError("Cannot write");
        done += static_cast<std::size_t>(std::max<ssize_t>(size, 0));
    }
    if (fsync(file) != 0)
        return SystemError("Cannot write");
    return {};
}

/// A new file, as open to others as the user's mask allows.
FileDescriptor CreateBeside(const std::string& folder, std::string& path)
{
    std::random_device random;
    FileDescriptor file;
    for (int i = 0; i < 100 && !file; ++i) {
        path = folder + ".zentaro-" + std::to_string(random());
        file = FileDescriptor(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (!file && errno != EEXIST)
            break;
    }
    return file;
}

Result<void> FillAndRename(int file, const std::string& from, const std::string& to, const std::string& text)
{
    if (auto written = WriteAll(file, text); !written)
        return written;
    if (rename(from.c_str(), to.c_str()) != 0)
        return SystemError("Cannot replace " + to);
    return {};
}

} // namespace

std::optional<std::string> ReadTextFile(const std::string& path, std::size_t limit)
{
    // Without waiting: a pipe that nobody writes to would otherwise hold the program up before it can be refused.
    const FileDescriptor file(HasNul(path) ? -1 : open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat facts { };
    if (!file || fstat(file.Number(), &facts) != 0 || !S_ISREG(facts.st_mode))
        return std::nullopt;
    std::string text;
    char piece[65536];
    while (text.size() < limit) {
        const auto size = read(file.Number(), piece, std::min(sizeof piece, limit - text.size()));
        if (size < 0 && errno == EINTR)
            continue;
        if (size < 0)
            return std::nullopt;
        if (size == 0)
            break;
        text.append(piece, static_cast<std::size_t>(size));
    }
    return text;
}

bool PathExists(const std::string& path)
{
    struct stat facts { };
    return !HasNul(path) && stat(path.c_str(), &facts) == 0;
}

bool MayWriteFile(const std::string& path)
{
    struct stat facts { };
    return !HasNul(path) && stat(path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode)
        && faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

Result<void> ReplaceTextFile(const std::string& path, const std::string& text)
{
    if (path.empty() || HasNul(path))
        return Error{ EINVAL, "No name of a file" };
    const auto target = FollowLinks(path);
    struct stat old { };
    const bool existed = lstat(target.c_str(), &old) == 0;
    if (existed && !S_ISREG(old.st_mode))
        return Error{ EINVAL, target + " is no regular file" };

    const auto folder = FolderPart(target);
    std::string temporary;
    const auto file = CreateBeside(folder, temporary);
    if (!file)
        return SystemError("Cannot write into the folder of " + target);
    if (existed) {
        // The owner can change only for the administrator, who may be mending another user's file.
        [[maybe_unused]] const int owner = fchown(file.Number(), old.st_uid, old.st_gid);
        fchmod(file.Number(), old.st_mode & 07777);
    }
    auto done = FillAndRename(file.Number(), temporary, target, text);
    if (!done) {
        unlink(temporary.c_str());
        return done;
    }
    const FileDescriptor opened(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened)
        fsync(opened.Number());
    return done;
}

} // namespace zentaro::platform
