#include "platform/CommandLine.h"
#include "platform/Folders.h"
#include "platform/StringStore.h"

#include <cctype>
#include <cstdlib>
#include <random>
#include <windows.h>

namespace zentaro::platform {
namespace {

std::string ShellFolder(const std::string& name, const std::string& fallback)
{
    const auto folder = StringStore::Open()->Read(StringStore::Root::CurrentUser,
        "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders", name, fallback);
    return folder.substr(0, folder.find('\0'));
}

} // namespace

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

std::string DesktopFolder()
{
    return ShellFolder("Desktop", "C:\\");
}

std::string PicturesFolder()
{
    const char* home = std::getenv("USERPROFILE");
    return ShellFolder("My Pictures", home ? home : "C:\\");
}

std::string MakeWorkingFolder()
{
    char parent[MAX_PATH + 1] = {};
    if (GetTempPathA(sizeof parent, parent) == 0)
        return "";
    std::random_device random;
    for (int i = 0; i < 100; ++i) {
        const auto folder = std::string(parent) + "zentaro-" + std::to_string(random());
        if (CreateDirectoryA(folder.c_str(), nullptr))
            return folder;
        if (GetLastError() != ERROR_ALREADY_EXISTS)
            break;
    }
    return "";
}

std::string CommandLineText(const std::vector<std::string>&)
{
    return std::string(TextAfterProgramName(GetCommandLineA()));
}

} // namespace zentaro::platform
