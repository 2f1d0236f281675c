#include "platform/DesktopFiles_linux.h"

#include "platform/ChildProcess.h"
#include "platform/Files.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <system_error>
#include <unistd.h>

namespace zentaro::platform {
namespace {

using std::chrono_literals::operator""s;
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

/// A program as an entry's "TryExec" names it: a path, or a name to be searched for; empty: any.
bool MayRun(std::string program)
{
    for (auto at = program.find('\\'); at != std::string::npos; at = program.find('\\', at + 1))
        program.erase(at, 1);
    return program.empty()
        || (program.front() == '/' ? access(program.c_str(), X_OK) == 0 : FindTool(program, "").has_value());
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

std::vector<std::string> FoldersOf(QStandardPaths::StandardLocation location)
{
    std::vector<std::string> folders;
    for (const auto& folder : QStandardPaths::standardLocations(location))
        folders.push_back(folder.toStdString());
    return folders;
}

std::optional<std::string> ReadDesktopFile(const std::string& path)
{
    auto text = ReadTextFile(path, kDesktopFileLimit);
    return text && text->size() < kDesktopFileLimit ? text : std::nullopt;
}

std::vector<std::string> DefaultsNames()
{
    std::vector<std::string> names;
    const char* desktops = std::getenv("XDG_CURRENT_DESKTOP");
    std::string rest = desktops ? desktops : "";
    while (!rest.empty()) {
        auto name = rest.substr(0, rest.find(':'));
        rest.erase(0, name.size() + 1);
        std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return std::tolower(c); });
        if (!name.empty() && name.find('/') == std::string::npos)
            names.push_back(name + "-mimeapps.list");
    }
    names.push_back("mimeapps.list");
    return names;
}

std::string EntryValue(const std::string& text, const std::string& key)
{
    const auto start = text.find("[Desktop Entry]");
    if (start == std::string::npos)
        return {};
    const auto main = text.substr(start, text.find("\n[", start) - start);
    const auto at = main.find("\n" + key + "=");
    if (at == std::string::npos)
        return {};
    const auto first = at + key.size() + 2;
    return main.substr(first, main.find_first_of("\r\n", first) - first);
}

void RunTool(const std::string& name, const std::vector<std::string>& arguments, bool wait)
{
    const auto tool = FindTool(name, "");
    if (!tool)
        return;
    const auto process = ShellStart({ *tool, arguments, "", 0, !wait });
    if (process && wait)
        process->HasEnded(3s);
}

std::optional<bool> BringFileInLine(const std::string& path, const std::optional<std::string>& text)
{
    std::error_code error;
    if (!text) {
        const bool removed = fs::remove(path, error);
        return error ? std::nullopt : std::optional(removed);
    }
    if (ReadTextFile(path, kDesktopFileLimit) == text)
        return false;
    fs::create_directories(fs::path(path).parent_path(), error);
    return ReplaceTextFile(path, *text) ? std::optional(true) : std::nullopt;
}

std::optional<std::string> ReadEntry(const std::vector<std::string>& dataFolders, const std::string& name)
{
    std::vector<std::string> files = { name };
    for (auto dash = name.find('-'); dash != std::string::npos; dash = name.find('-', dash + 1)) {
        files.push_back(name);
        files.back()[dash] = '/';
    }
    for (const auto& folder : dataFolders) {
        for (const auto& file : files) {
            auto text = ReadDesktopFile(folder + "/applications/" + file);
            if (!text)
                continue;
            // One that is hidden or whose program is gone is as good as removed, for all folders that follow.
            const bool counts = EntryValue(*text, "Hidden") != "true" && MayRun(EntryValue(*text, "TryExec"));
            return counts ? std::move(text) : std::nullopt;
        }
    }
    return std::nullopt;
}

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
