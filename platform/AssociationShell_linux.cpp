#include "platform/AssociationShell.h"
#include "platform/ChildProcess.h"
#include "platform/DesktopEntry.h"
#include "platform/MimeApps.h"
#include "platform/TextFile.h"

#include <QMimeDatabase>
#include <QStandardPaths>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <system_error>

namespace zentaro::platform {
namespace {

namespace fs = std::filesystem;
using std::chrono_literals::operator""s;

constexpr std::size_t kFileLimit = 1 << 20; // bytes; such files are far shorter

/// The user's own folder first.
std::vector<std::string> FoldersOf(QStandardPaths::StandardLocation location)
{
    std::vector<std::string> folders;
    for (const auto& folder : QStandardPaths::standardLocations(location))
        folders.push_back(folder.toStdString());
    return folders;
}

bool Contains(const std::vector<std::string>& list, const std::string& text)
{
    return std::find(list.begin(), list.end(), text) != list.end();
}

bool IsOurEntry(const std::string& entry)
{
    return entry == kOpenEntry || entry == kAddEntry;
}

std::optional<std::string> ReadWhole(const std::string& path)
{
    auto text = ReadTextFile(path, kFileLimit);
    return text && text->size() < kFileLimit ? text : std::nullopt;
}

/// The names of the files of defaults in a folder, the first one counting most.
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

/// The value of a key in the entry's main group.
std::string EntryValue(const std::string& text, const std::string& key)
{
    const auto main = text.substr(0, text.find("\n[", 1));
    const auto at = main.find("\n" + key + "=");
    if (at == std::string::npos)
        return {};
    const auto start = at + key.size() + 2;
    return main.substr(start, main.find_first_of("\r\n", start) - start);
}

/// What this system calls the files with that extension.
std::string UsualType(const std::string& extension)
{
    const auto types = MimeTypesOf(extension);
    for (const auto& known : QMimeDatabase().mimeTypesForFileName(QString::fromStdString("x" + extension))) {
        if (auto name = known.name().toStdString(); Contains(types, name))
            return name;
    }
    return types.empty() ? "" : types.front();
}

bool RunTool(const std::string& name, const std::vector<std::string>& arguments, bool wait)
{
    const auto tool = FindTool(name, "");
    if (!tool)
        return false;
    const auto process = ShellStart({ *tool, arguments, "", 0, !wait });
    return process && (!wait || process->HasEnded(3s));
}

/// Makes the file hold the text, or go when there is none. True when it had to change, nothing when it would not.
std::optional<bool> BringFileInLine(const std::string& path, const std::optional<std::string>& text)
{
    std::error_code error;
    if (!text) {
        const bool removed = fs::remove(path, error);
        return error ? std::nullopt : std::optional(removed);
    }
    if (ReadTextFile(path, kFileLimit) == text)
        return false;
    fs::create_directories(fs::path(path).parent_path(), error);
    return ReplaceTextFile(path, *text) ? std::optional(true) : std::nullopt;
}

/// The desktop by its common files, which every desktop environment reads.
class Desktop : public AssociationShell {
public:
    Desktop(const std::string& programPath, const std::string& programFolder)
        : m_programPath(programPath)
        , m_programFolder(programFolder)
        , m_dataFolders(FoldersOf(QStandardPaths::GenericDataLocation))
        , m_configFolders(FoldersOf(QStandardPaths::GenericConfigLocation))
    {
    }

    bool Refresh() override
    {
        m_entries.clear();
        m_ownDefaults.clear();
        m_otherDefaults.clear();
        m_caches.clear();
        bool mayChange = true;
        for (const auto& name : DefaultsNames())
            mayChange = ReadOwnDefaults(m_configFolders.front() + "/" + name) && mayChange;
        for (std::size_t i = 1; i < m_configFolders.size(); ++i)
            ReadOtherDefaults(m_configFolders[i]);
        for (const auto& folder : m_dataFolders)
            ReadOtherDefaults(folder + "/applications");
        for (const auto& folder : m_dataFolders) {
            if (const auto text = ReadTextFile(folder + "/applications/mimeinfo.cache", 8 * kFileLimit))
                m_caches.emplace_back(*text);
        }
        return mayChange;
    }

    std::optional<LiveOwner> CurrentOwner(const std::string& extension) override
    {
        const auto owner = DefaultOf(UsualType(extension), true);
        if (owner.empty() || IsOurEntry(owner))
            return LiveOwner{ !owner.empty(), owner, "" };
        return LiveOwner{ false, owner, IconOf(owner) };
    }

    /// What has changed is looked up in one go, when all changes are made.
    void AssociationsChanged() override { }

    bool BringInLine(const std::vector<AssociatedType>& types) override
    {
        std::vector<std::string> owned;
        for (const auto& type : types) {
            for (const auto& name : type.isOurs ? MimeTypesOf(type.extension) : std::vector<std::string>()) {
                if (!Contains(owned, name))
                    owned.push_back(name);
            }
        }
        // Only what we have taken is given back: who has made this player the default by other means means it.
        const auto before = TypesOfEntry();
        for (const auto& name : owned)
            Take(name);
        for (const auto& name : before) {
            if (!Contains(owned, name))
                Release(name);
        }
        for (const auto& type : types) {
            const auto usual = UsualType(type.extension);
            if (Contains(before, usual) && !Contains(owned, usual))
                Restore(usual, type.owner);
        }
        if (!WriteDefaults())
            return false;
        if (!WriteEntries(Facts(types, owned))) {
            RevertDefaults();
            return false;
        }
        return true;
    }

private:
    struct Defaults {
        std::string path;
        std::string stored;
        MimeApps now;
    };

    std::string DataPath(const std::string& name) const { return m_dataFolders.front() + "/" + name; }

    bool ReadOwnDefaults(const std::string& path)
    {
        const bool exists = PathExists(path);
        const auto text = ReadWhole(path);
        m_ownDefaults.push_back({ path, text.value_or(""), MimeApps(text.value_or("")) });
        return !exists || (text && MayWriteFile(path));
    }

    void ReadOtherDefaults(const std::string& folder)
    {
        for (const auto& name : DefaultsNames()) {
            if (const auto text = ReadWhole(folder + "/" + name))
                m_otherDefaults.emplace_back(*text);
        }
    }

    /// The text of an installed desktop entry.
    const std::optional<std::string>& Entry(const std::string& name)
    {
        const auto known = m_entries.find(name);
        if (known != m_entries.end())
            return known->second;
        auto& entry = m_entries[name];
        for (const auto& folder : m_dataFolders) {
            // A dash may stand for a folder.
            for (auto dash = name.find('-'); !entry; dash = name.find('-', dash + 1)) {
                auto file = name;
                const bool isLast = dash == std::string::npos;
                if (!isLast)
                    file[dash] = '/';
                entry = ReadWhole(folder + "/applications/" + file);
                if (isLast)
                    break;
            }
            if (entry)
                break;
        }
        // One that is hidden is as good as removed.
        if (entry && EntryValue("\n" + *entry, "Hidden") == "true")
            entry.reset();
        return entry;
    }

    /// The program that opens files of the type; empty when there is none.
    std::string DefaultOf(const std::string& type, bool withOurs)
    {
        const auto firstOf = [&](const std::vector<std::string>& programs) -> std::string {
            for (const auto& program : programs) {
                if ((withOurs || !IsOurEntry(program)) && program.find('/') == std::string::npos && Entry(program))
                    return program;
            }
            return {};
        };
        for (const auto group : { kDefaultApplications, kAddedAssociations }) {
            for (const auto& defaults : m_ownDefaults) {
                if (auto program = firstOf(defaults.now.Programs(group, type)); !program.empty())
                    return program;
            }
            for (const auto& defaults : m_otherDefaults) {
                if (auto program = firstOf(defaults.Programs(group, type)); !program.empty())
                    return program;
            }
        }
        for (const auto& cache : m_caches) {
            auto programs = cache.Programs(kMimeCache, type);
            for (const auto& defaults : m_ownDefaults) {
                for (const auto& removed : defaults.now.Programs(kRemovedAssociations, type))
                    std::erase(programs, removed);
            }
            if (auto program = firstOf(programs); !program.empty())
                return program;
        }
        return {};
    }

    /// A file where one is found, else what the entry says.
    std::string IconOf(const std::string& entryName)
    {
        const auto name = EntryValue("\n" + Entry(entryName).value_or(""), "Icon");
        if (name.empty() || name.front() == '/')
            return name;
        for (const auto& folder : m_dataFolders) {
            for (const auto* size : { "48x48", "64x64", "128x128", "256x256", "512x512", "32x32", "scalable" }) {
                for (const auto* kind : { ".png", ".svg" }) {
                    const auto path = folder + "/icons/hicolor/" + size + "/apps/" + name + kind;
                    if (PathExists(path))
                        return path;
                }
            }
            for (const auto* kind : { "", ".png", ".svg", ".xpm" }) {
                const auto path = folder + "/pixmaps/" + name + kind;
                if (PathExists(path))
                    return path;
            }
        }
        return name;
    }

    /// What the entry that we have written last was for.
    std::vector<std::string> TypesOfEntry() const
    {
        const auto text = ReadWhole(DataPath(std::string("applications/") + kOpenEntry));
        const auto list = EntryValue(text.value_or(""), "MimeType");
        return MimeApps("[x]\nx=" + list).Programs("x", "x");
    }

    void Take(const std::string& type)
    {
        for (auto& defaults : m_ownDefaults) {
            const bool isMain = &defaults == &m_ownDefaults.back();
            const auto programs = defaults.now.Programs(kDefaultApplications, type);
            // What was the default stays behind ours, so that it comes back when ours goes.
            if ((isMain || !programs.empty()) && (programs.empty() || programs.front() != kOpenEntry))
                defaults.now.PutFirst(kDefaultApplications, type, { kOpenEntry });
            for (const auto* entry : { kOpenEntry, kAddEntry })
                defaults.now.Remove(kRemovedAssociations, type, entry);
        }
        // So both are on offer even where no tool collects what the entries are for.
        auto& main = m_ownDefaults.back().now;
        const auto added = main.Programs(kAddedAssociations, type);
        if (!Contains(added, kOpenEntry) || !Contains(added, kAddEntry))
            main.PutFirst(kAddedAssociations, type, { kOpenEntry, kAddEntry });
    }

    void Release(const std::string& type)
    {
        for (auto& defaults : m_ownDefaults) {
            for (const auto* entry : { kOpenEntry, kAddEntry }) {
                defaults.now.Remove(kDefaultApplications, type, entry);
                defaults.now.Remove(kAddedAssociations, type, entry);
            }
        }
    }

    void Restore(const std::string& type, const std::string& owner)
    {
        if (!owner.empty() && !IsOurEntry(owner) && owner.ends_with(".desktop") && DefaultOf(type, false) != owner
            && Entry(owner))
            m_ownDefaults.back().now.PutFirst(kDefaultApplications, type, { owner });
    }

    bool WriteDefaults()
    {
        for (const auto& defaults : m_ownDefaults) {
            const auto text = defaults.now.Text();
            if (text != defaults.stored && !BringFileInLine(defaults.path, text)) {
                RevertDefaults();
                return false;
            }
        }
        return true;
    }

    void RevertDefaults() const
    {
        for (const auto& defaults : m_ownDefaults) {
            if (PathExists(defaults.path) && ReadWhole(defaults.path) != defaults.stored)
                IgnoreFailure(ReplaceTextFile(defaults.path, defaults.stored));
        }
    }

    DesktopEntryFacts Facts(const std::vector<AssociatedType>& types, const std::vector<std::string>& owned) const
    {
        DesktopEntryFacts facts{ m_programPath, "zentaro", owned, {} };
        for (const auto* name : { "icons/png/256/zentaro.png", "icons/zentaro.png" }) {
            if (facts.icon == "zentaro" && PathExists(m_programFolder + name))
                facts.icon = m_programFolder + name;
        }
        for (const auto& type : types) {
            if (type.isOurs)
                facts.extensions.push_back(type.extension);
        }
        return facts;
    }

    /// False when one of the two entries that a default needs cannot be written.
    bool WriteEntries(const DesktopEntryFacts& facts)
    {
        const auto textOf = [&](std::string (*make)(const DesktopEntryFacts&)) {
            return facts.mimeTypes.empty() ? std::nullopt : std::optional(make(facts));
        };
        const auto applications = DataPath("applications");
        const auto add = BringFileInLine(applications + "/" + kAddEntry, textOf(&AddEntryText));
        const auto open = add ? BringFileInLine(applications + "/" + kOpenEntry, textOf(&OpenEntryText)) : add;
        if (!add || !open)
            return false;
        if (*add || *open)
            RunTool("update-desktop-database", { applications }, true);

        const auto menu = DataPath("kio/servicemenus/zentaro-add.desktop");
        if (BringFileInLine(menu, textOf(&AddServiceMenuText)) == true) {
            // Without this right such a file of a user is not trusted.
            std::error_code ignored;
            fs::permissions(menu, fs::perms::owner_exec, fs::perm_options::add, ignored);
        }
        BringFileInLine(DataPath("nemo/actions/zentaro-add.nemo_action"), textOf(&AddNemoActionText));
        BringFileInLine(DataPath("file-manager/actions/zentaro-add.desktop"), textOf(&AddActionText));
        WriteMimeTypes(facts.extensions);
        return true;
    }

    /// Names of files that the system may not know, and our icons.
    void WriteMimeTypes(const std::vector<std::string>& extensions)
    {
        std::vector<MimeAddition> additions;
        for (const auto& extension : extensions) {
            const auto type = UsualType(extension);
            auto addition = std::find_if(
                additions.begin(), additions.end(), [&](const MimeAddition& other) { return other.type == type; });
            if (addition == additions.end())
                addition = additions.insert(additions.end(), { type, {}, "" });
            addition->extensions.push_back(extension);
        }
        const auto icons = InstallIcons(additions);
        for (auto& addition : additions) {
            const auto name = "zentaro-" + addition.extensions.front().substr(1);
            if (Contains(icons, name))
                addition.icon = name;
        }
        const auto text = additions.empty() ? std::nullopt : std::optional(MimePackageText(additions));
        if (BringFileInLine(DataPath("mime/packages/zentaro.xml"), text) == true)
            RunTool("update-mime-database", { DataPath("mime") }, false);
    }

    /// The names under which icons of the types lie in the user's icon theme now.
    std::vector<std::string> InstallIcons(const std::vector<MimeAddition>& additions) const
    {
        std::vector<std::string> installed;
        bool changed = false;
        std::error_code ignored;
        const auto bring = [&](const std::string& from, const std::string& size, const std::string& kind) {
            const auto folder = DataPath("icons/hicolor/" + size + "/mimetypes/");
            std::vector<std::string> wanted;
            for (const auto& addition : additions) {
                const auto extension = addition.extensions.front().substr(1);
                const auto name = "zentaro-" + extension;
                wanted.push_back(name + kind);
                if (BringIcon(from + extension + kind, folder + name + kind, changed) && !Contains(installed, name))
                    installed.push_back(name);
            }
            for (const auto& file : fs::directory_iterator(folder, ignored)) {
                const auto name = file.path().filename().string();
                if (name.starts_with("zentaro-") && !Contains(wanted, name))
                    changed = fs::remove(file.path(), ignored) || changed;
            }
        };
        const auto source = m_programFolder + "icons/";
        for (const auto& size : fs::directory_iterator(source + "png", ignored)) {
            const auto side = size.path().filename().string();
            bring(source + "png/" + side + "/", side + "x" + side, ".png");
        }
        bring(source + "svg/", "scalable", ".svg");
        if (changed)
            AnnounceIcons();
        return installed;
    }

    /// True when the icon lies there afterwards.
    static bool BringIcon(const std::string& from, const std::string& to, bool& changed)
    {
        std::error_code error;
        const auto made = fs::last_write_time(from, error);
        if (error)
            return false;
        if (const auto there = fs::last_write_time(to, error); !error && there >= made)
            return true;
        fs::create_directories(fs::path(to).parent_path(), error);
        const bool copied = fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
        changed = changed || copied;
        return copied;
    }

    /// Readers of a theme look at its folder's time, or at its cache where there is one.
    void AnnounceIcons() const
    {
        const auto theme = DataPath("icons/hicolor");
        std::error_code ignored;
        fs::last_write_time(theme, fs::file_time_type::clock::now(), ignored);
        if (PathExists(theme + "/icon-theme.cache"))
            RunTool("gtk-update-icon-cache", { "-f", "-t", theme }, false);
    }

    std::string m_programPath;
    std::string m_programFolder;
    std::vector<std::string> m_dataFolders;
    std::vector<std::string> m_configFolders;
    std::vector<Defaults> m_ownDefaults; // in the order in which they count; the last one is every desktop's
    std::vector<MimeApps> m_otherDefaults;
    std::vector<MimeApps> m_caches;
    std::map<std::string, std::optional<std::string>> m_entries;
};

} // namespace

std::unique_ptr<AssociationShell> AssociationShell::Open(
    const std::string& programPath, const std::string& programFolder)
{
    return std::make_unique<Desktop>(programPath, programFolder);
}

std::string ShortProgramPath()
{
    std::error_code ignored;
    return ExecQuoted(fs::read_symlink("/proc/self/exe", ignored).string());
}

} // namespace zentaro::platform
