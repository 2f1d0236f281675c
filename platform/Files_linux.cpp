#include "platform/Files_linux.h"

#include "desktop/CommandLine.h"
#include "platform/Files.h"

#include <QStandardPaths>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <pwd.h>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <vector>

namespace zentaro::platform {

using namespace desktop;

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
    for (int i = 0; i < 100; ++i) {
        path = folder + std::string(kReplacementPrefix) + std::to_string(random());
        FileDescriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (!file && errno != EEXIST)
            break;
        if (file && LockNew(file.Number()))
            return file;
    }
    return FileDescriptor();
}

Result<void> FillAndRename(int file, const std::string& from, const std::string& to, const std::string& text)
{
    if (auto written = WriteAll(file, text); !written)
        return written;
    if (rename(from.c_str(), to.c_str()) != 0)
        return SystemError("Cannot replace " + to);
    return {};
}

std::string HomeFolder()
{
    if (const char* home = std::getenv("HOME"); home && home[0] == '/')
        return home;
    const passwd* user = getpwuid(getuid());
    return user ? user->pw_dir : "/";
}

bool IsFolder(const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

std::string UserFolder(QStandardPaths::StandardLocation location)
{
    const auto folder = QStandardPaths::writableLocation(location).toStdString();
    return IsFolder(folder) ? folder : HomeFolder();
}

std::string AbsoluteWhenThere(const std::string& path)
{
    if (path.empty() || IsAbsolutePath(path) || !PathExists(path))
        return path;
    std::error_code error;
    const auto current = std::filesystem::current_path(error).string();
    if (error)
        return path;
    return current == "/" ? current + path : current + "/" + path;
}

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

FileText ReadFileText(const std::string& path, std::size_t limit)
{
    if (HasNul(path))
        return {};
    // Without waiting: a pipe that nobody writes to would otherwise hold the program up before it can be refused.
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat facts { };
    if (!file)
        return { errno == ENOENT || errno == ENOTDIR ? FileState::Missing : FileState::Unreadable, "" };
    if (fstat(file.Number(), &facts) != 0 || !S_ISREG(facts.st_mode))
        return { FileState::Unreadable, "" };
    FileText read{ FileState::Readable, "" };
    char piece[65536];
    while (read.text.size() < limit) {
        const auto size = ::read(file.Number(), piece, std::min(sizeof piece, limit - read.text.size()));
        if (size < 0 && errno == EINTR)
            continue;
        if (size < 0)
            return { FileState::Unreadable, "" };
        if (size == 0)
            break;
        read.text.append(piece, static_cast<std::size_t>(size));
    }
    return read;
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

char PathSeparator()
{
    return '/';
}

bool IsAbsolutePath(const std::string& path)
{
    return !path.empty() && path.front() == '/';
}

std::string ExecutableFolder()
{
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path().string();
}

std::string SettingsFolder()
{
    const auto program = ExecutableFolder();
    if (!PathExists(program + "/zentaro.package"))
        return program;
    const char* configured = std::getenv("XDG_CONFIG_HOME");
    const auto parent = configured && configured[0] == '/' ? std::string(configured) : HomeFolder() + "/.config";
    const auto folder = parent + "/zentaro";
    std::error_code ignored;
    if (std::filesystem::create_directories(folder, ignored))
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
    return folder;
}

std::string CacheFolder()
{
    const char* const configured = std::getenv("XDG_CACHE_HOME");
    return (configured && configured[0] == '/' ? std::string(configured) : HomeFolder() + "/.cache") + "/zentaro";
}

std::string DesktopFolder()
{
    return UserFolder(QStandardPaths::DesktopLocation);
}

std::string PicturesFolder()
{
    return UserFolder(QStandardPaths::PicturesLocation);
}

std::string CommandLineText(const std::vector<std::string>& arguments)
{
    return JoinArguments(arguments, AbsoluteWhenThere);
}

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

bool LockNew(int descriptor)
{
    struct stat facts { };
    if (flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return false;
    // Where files cannot be locked nobody takes anything for a leftover.
    return fstat(descriptor, &facts) == 0 && facts.st_nlink > 0;
}

} // namespace zentaro::platform
