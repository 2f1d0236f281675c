#include "platform/TypeIcons_linux.h"

#include "platform/ChildProcess.h"
#include "platform/TextFile.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>

namespace zentaro::platform {
namespace {

namespace fs = std::filesystem;

/// True when the icon lies there afterwards.
bool BringIcon(const fs::path& from, const fs::path& to, bool& changed)
{
    std::error_code error;
    const auto made = fs::last_write_time(from, error);
    if (error)
        return false;
    if (const auto there = fs::last_write_time(to, error); !error && there >= made)
        return true;
    fs::create_directories(to.parent_path(), error);
    const bool copied = fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
    changed = changed || copied;
    return copied;
}

void RemoveOthers(const fs::path& folder, const std::set<std::string>& wanted, bool& changed)
{
    std::error_code ignored;
    for (const auto& file : fs::directory_iterator(folder, ignored)) {
        const auto name = file.path().filename().string();
        if (name.starts_with("zentaro-") && !wanted.contains(name))
            changed = fs::remove(file.path(), ignored) || changed;
    }
}

/// Readers of a theme look at its folder's time, or at its cache where there is one.
void Announce(const std::string& themeFolder)
{
    std::error_code ignored;
    fs::last_write_time(themeFolder, fs::file_time_type::clock::now(), ignored);
    const auto tool = FindTool("gtk-update-icon-cache", "");
    if (tool && PathExists(themeFolder + "/icon-theme.cache"))
        ShellStart({ *tool, { "-f", "-t", themeFolder }, "", 0, true });
}

} // namespace

std::vector<std::string> BringTypeIcons(
    const std::vector<std::string>& names, const std::string& source, const std::string& themeFolder)
{
    std::set<std::string> there;
    bool changed = false;
    const auto bring = [&](const fs::path& from, const std::string& size, const std::string& kind) {
        const auto folder = fs::path(themeFolder) / size / "mimetypes";
        std::set<std::string> wanted;
        for (const auto& name : names) {
            const auto file = "zentaro-" + name + kind;
            wanted.insert(file);
            if (BringIcon(from / (name + kind), folder / file, changed))
                there.insert(name);
        }
        RemoveOthers(folder, wanted, changed);
    };
    std::error_code ignored;
    for (const auto& size : fs::directory_iterator(source + "png", ignored)) {
        const auto side = size.path().filename().string();
        bring(size.path(), side + "x" + side, ".png");
    }
    bring(source + "svg", "scalable", ".svg");
    if (changed)
        Announce(themeFolder);
    return { there.begin(), there.end() };
}

std::string FindProgramIcon(const std::string& icon, const std::vector<std::string>& dataFolders)
{
    if (icon.empty() || icon.front() == '/')
        return icon;
    for (const auto& folder : dataFolders) {
        for (const auto* size : { "48x48", "64x64", "128x128", "256x256", "512x512", "32x32", "scalable" }) {
            for (const auto* kind : { ".png", ".svg" }) {
                const auto path = folder + "/icons/hicolor/" + size + "/apps/" + icon + kind;
                if (PathExists(path))
                    return path;
            }
        }
        for (const auto* kind : { "", ".png", ".svg", ".xpm" }) {
            const auto path = folder + "/pixmaps/" + icon + kind;
            if (PathExists(path))
                return path;
        }
    }
    return icon;
}

} // namespace zentaro::platform
