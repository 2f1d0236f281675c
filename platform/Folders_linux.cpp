#include "platform/CommandLine.h"
#include "platform/Folders.h"
#include "platform/RuntimeFolder_linux.h"
#include "platform/TextFile.h"

#include <QStandardPaths>

#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <system_error>
#include <vector>

namespace zentaro::platform {
namespace {

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

std::string MakeFolderIn(const std::string& parent)
{
    auto name = parent + "/zentaro-XXXXXX";
    return mkdtemp(name.data()) ? name : "";
}

} // namespace

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

std::string DesktopFolder()
{
    return UserFolder(QStandardPaths::DesktopLocation);
}

std::string PicturesFolder()
{
    return UserFolder(QStandardPaths::PicturesLocation);
}

std::string MakeWorkingFolder()
{
    const auto parent = TemporaryFolder();
    const auto folder = MakeFolderIn(parent);
    return folder.empty() && parent != "/tmp" ? MakeFolderIn("/tmp") : folder;
}

std::string CommandLineText(const std::vector<std::string>& arguments)
{
    return JoinArguments(arguments, AbsoluteWhenThere);
}

} // namespace zentaro::platform
