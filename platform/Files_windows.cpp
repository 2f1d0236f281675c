#include "desktop/CommandLine.h"
#include "platform/Files.h"
#include "platform/StringStore.h"
#include "platform/System_windows.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <random>
#include <windows.h>

namespace zentaro::platform {

using namespace desktop;

namespace {

SystemObject OpenFile(const std::string& path, DWORD access, DWORD disposition, DWORD flags)
{
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const bool hasNul = path.find('\0') != std::string::npos;
    const HANDLE file = hasNul ? INVALID_HANDLE_VALUE
                               : CreateFileA(path.c_str(), access, kShareAll, nullptr, disposition, flags, nullptr);
    return SystemObject(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

bool IsMissing(DWORD error)
{
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME
        || error == ERROR_BAD_PATHNAME;
}

/// What a link names in the end.
std::string FollowLinks(const std::string& path)
{
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return path;
    const auto file = OpenFile(path, 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    std::string target(32768, '\0');
    const DWORD size =
        file ? GetFinalPathNameByHandleA(file.get(), target.data(), static_cast<DWORD>(target.size()), 0) : 0;
    if (size == 0 || size >= target.size())
        return path;
    target.resize(size);
    return target;
}

Result<void> WriteNewFile(const std::string& path, const std::string& text)
{
    const auto file = OpenFile(path, GENERIC_WRITE, CREATE_NEW, FILE_ATTRIBUTE_NORMAL);
    if (!file)
        return SystemError("Cannot make " + path, GetLastError());
    for (std::size_t done = 0; done < text.size();) {
        const auto size = static_cast<DWORD>(std::min<std::size_t>(text.size() - done, 1U << 30));
        DWORD written = 0;
        if (!WriteFile(file.get(), text.data() + done, size, &written, nullptr))
            return SystemError("Cannot write " + path, GetLastError());
        done += written;
    }
    if (!FlushFileBuffers(file.get()))
        return SystemError("Cannot write " + path, GetLastError());
    return {};
}

Result<void> TakeName(const std::string& from, const std::string& to)
{
    // The first call keeps the old file's rights; it needs an old file.
    if (ReplaceFileA(to.c_str(), from.c_str(), nullptr, 0, nullptr, nullptr)
        || MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return {};
    return SystemError("Cannot replace " + to, GetLastError());
}

std::string WholeWhenThere(const std::string& path)
{
    if (path.empty() || IsAbsolutePath(path) || !PathExists(path))
        return path;
    std::string whole(32768, '\0');
    const DWORD size = GetFullPathNameA(path.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr);
    return size == 0 || size >= whole.size() ? path : whole.substr(0, size);
}

std::string ShellFolder(const std::string& name, const std::string& fallback)
{
    const auto folder = StringStore::Open()->Read(StringStore::Root::CurrentUser,
        "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders", name, fallback);
    return folder.substr(0, folder.find('\0'));
}

} // namespace

FileText ReadFileText(const std::string& path, std::size_t limit)
{
    if (path.find('\0') != std::string::npos)
        return {};
    const auto file = OpenFile(path, GENERIC_READ, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
    if (!file)
        return { IsMissing(GetLastError()) ? FileState::Missing : FileState::Unreadable, "" };
    if (GetFileType(file.get()) != FILE_TYPE_DISK)
        return { FileState::Unreadable, "" };
    FileText read{ FileState::Readable, "" };
    char piece[65536];
    while (read.text.size() < limit) {
        DWORD size = 0;
        const auto wanted = static_cast<DWORD>(std::min(sizeof piece, limit - read.text.size()));
        if (!ReadFile(file.get(), piece, wanted, &size, nullptr))
            return { FileState::Unreadable, "" };
        if (size == 0)
            break;
        read.text.append(piece, size);
    }
    return read;
}

bool PathExists(const std::string& path)
{
    return path.find('\0') == std::string::npos && GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool MayWriteFile(const std::string& path)
{
    return OpenFile(path, GENERIC_WRITE, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL) != nullptr;
}

Result<void> ReplaceTextFile(const std::string& path, const std::string& text)
{
    if (path.empty() || path.find('\0') != std::string::npos)
        return Error{ ERROR_INVALID_NAME, "No name of a file" };
    const auto target = FollowLinks(path);
    const DWORD attributes = GetFileAttributesA(target.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return Error{ ERROR_ACCESS_DENIED, target + " is a folder" };
    const auto separator = target.find_last_of("\\/:");
    const auto folder = separator == std::string::npos ? "" : target.substr(0, separator + 1);
    const auto name =
        std::string(kOurPrefix) + std::to_string(std::random_device()()) + std::string(kReplacementSuffix);
    const auto temporary = folder + name;
    const auto inUse = MarkInUse(name);
    auto done = WriteNewFile(temporary, text);
    if (done)
        done = TakeName(temporary, target);
    if (!done && done.error().number != ERROR_FILE_EXISTS)
        DeleteFileA(temporary.c_str());
    return done;
}

char PathSeparator()
{
    return '\\';
}

bool IsAbsolutePath(const std::string& path)
{
    const auto isSeparator = [&](std::size_t at) { return path[at] == '\\' || path[at] == '/'; };
    if (path.size() >= 3 && std::isalpha(static_cast<unsigned char>(path[0])) != 0 && path[1] == ':')
        return isSeparator(2);
    return path.size() >= 3 && isSeparator(0) && isSeparator(1);
}

std::string ExecutableFolder()
{
    constexpr DWORD kLongestPath = 32768;
    std::string path(kLongestPath, '\0');
    path.resize(GetModuleFileNameA(nullptr, path.data(), kLongestPath));
    const auto separator = path.rfind('\\');
    return separator == std::string::npos ? path : path.substr(0, separator);
}

std::string SettingsFolder()
{
    return ExecutableFolder();
}

std::string CacheFolder()
{
    const char* const local = std::getenv("LOCALAPPDATA");
    return local != nullptr && *local != '\0' ? std::string(local) + "\\Zentaro" : std::string();
}

std::string DesktopFolder()
{
    return ShellFolder("Desktop", "C:\\");
}

std::string PicturesFolder()
{
    const char* home = std::getenv("USERPROFILE");
    return ShellFolder("My Pictures", home ? home : "C:\\");
}

std::string CommandLineText(const std::vector<std::string>&)
{
    // A player that runs already has another current folder.
    return WithWholePath(std::string(TextAfterProgramName(GetCommandLineA())), &WholeWhenThere);
}

} // namespace zentaro::platform
