#include "platform/AssociationShell.h"
#include "platform/ChildProcess.h"
#include "platform/DesktopDefaults.h"
#include "platform/DesktopEntry.h"
#include "platform/TextFile.h"
#include "platform/TypeIcons_linux.h"

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

// bytes; such files are far shorter
constexpr std::size_t kFileLimit = 1 << 20;
constexpr std::size_t kCacheLimit = 8 << 20;

const std::string kOpenEntryFile = std::string("applications/") + kOpenEntry;
const std::string kAddEntryFile = std::string("applications/") + kAddEntry;

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

/// Does nothing where the tool is missing.
void RunTool(const std::string& name, const std::vector<std::string>& arguments, bool wait)
{
    const auto tool = FindTool(name, "");
    if (!tool)
        return;
    const auto process = ShellStart({ *tool, arguments, "", 0, !wait });
    if (process && wait)
        process->HasEnded(3s);
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

/// The text of an installed desktop entry. A dash in its name may stand for a folder.
std::optional<std::string> ReadEntry(const std::vector<std::string>& dataFolders, const std::string& name)
{
    std::vector<std::string> files = { name };
    for (auto dash = name.find('-'); dash != std::string::npos; dash = name.find('-', dash + 1)) {
        files.push_back(name);
        files.back()[dash] = '/';
    }
    for (const auto& folder : dataFolders) {
        for (const auto& file : files) {
            auto text = ReadWhole(folder + "/applications/" + file);
            if (!text)
                continue;
            // One that is hidden is as good as removed, for all folders that follow.
            return EntryValue(*text, "Hidden") == "true" ? std::nullopt : std::move(text);
        }
    }
    return std::nullopt;
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
        m_defaults.isInstalled = [this](const std::string& entry) { return bool(Entry(entry)); };
    }

    bool Refresh() override
    {
        m_entries.clear();
        m_ownFiles.clear();
        m_defaults.own.clear();
        m_defaults.others.clear();
        m_defaults.caches.clear();
        bool mayChange = true;
        for (const auto& name : DefaultsNames())
            mayChange = ReadOwnDefaults(m_configFolders.front() + "/" + name) && mayChange;
        for (std::size_t i = 1; i < m_configFolders.size(); ++i)
            ReadOtherDefaults(m_configFolders[i]);
        for (const auto& folder : m_dataFolders)
            ReadOtherDefaults(folder + "/applications");
        for (const auto& folder : m_dataFolders) {
            if (const auto text = ReadTextFile(folder + "/applications/mimeinfo.cache", kCacheLimit))
                m_defaults.caches.emplace_back(*text);
        }
        return mayChange;
    }

    std::optional<LiveOwner> CurrentOwner(const std::string& extension) override
    {
        const auto owner = m_defaults.ProgramOf(UsualType(extension), true);
        if (owner.empty() || IsOurEntry(owner))
            return LiveOwner{ !owner.empty(), owner, "" };
        return LiveOwner{ false, owner, FindProgramIcon(EntryValue(Entry(owner).value_or(""), "Icon"), m_dataFolders) };
    }

    /// What has changed is looked up in one go, when all changes are made.
    void AssociationsChanged() override { }

    bool BringInLine(const std::vector<AssociatedType>& types) override
    {
        const auto facts = Facts(types);
        const auto& owned = facts.mimeTypes;
        // Only what we have taken is given back: who has made this player the default by other means means it.
        const auto before = TypesOfEntry();
        for (const auto& name : owned)
            m_defaults.Take(name);
        for (const auto& name : before) {
            if (!Contains(owned, name))
                m_defaults.Release(name);
        }
        for (const auto& type : types) {
            const auto usual = UsualType(type.extension);
            if (Contains(before, usual) && !Contains(owned, usual))
                m_defaults.Restore(usual, type.owner);
        }
        if (WriteDefaults() && WriteEntries(facts)) {
            WriteMenus(facts);
            WriteMimeTypes(facts.extensions);
            return true;
        }
        RevertDefaults();
        if (before.empty())
            BringFileInLine(DataPath(kAddEntryFile), std::nullopt);
        return false;
    }

private:
    struct OwnFile {
        std::string path;
        std::optional<std::string> stored;
    };

    std::string DataPath(const std::string& name) const { return m_dataFolders.front() + "/" + name; }

    bool ReadOwnDefaults(const std::string& path)
    {
        const bool exists = PathExists(path);
        const auto text = ReadWhole(path);
        m_ownFiles.push_back({ path, text });
        m_defaults.own.emplace_back(text.value_or(""));
        return !exists || (text && MayWriteFile(path));
    }

    void ReadOtherDefaults(const std::string& folder)
    {
        for (const auto& name : DefaultsNames()) {
            if (const auto text = ReadWhole(folder + "/" + name))
                m_defaults.others.emplace_back(*text);
        }
    }

    const std::optional<std::string>& Entry(const std::string& name)
    {
        const auto known = m_entries.find(name);
        if (known != m_entries.end())
            return known->second;
        const bool isName = !name.empty() && name.find('/') == std::string::npos;
        return m_entries[name] = isName ? ReadEntry(m_dataFolders, name) : std::nullopt;
    }

    /// What the entry that we have written last was for.
    std::vector<std::string> TypesOfEntry() const
    {
        const auto list = EntryValue(ReadWhole(DataPath(kOpenEntryFile)).value_or(""), "MimeType");
        return MimeApps("[x]\nx=" + list).Programs("x", "x");
    }

    bool WriteDefaults() const
    {
        for (std::size_t i = 0; i < m_ownFiles.size(); ++i) {
            const auto text = m_defaults.own[i].Text();
            if (text != m_ownFiles[i].stored.value_or("") && !BringFileInLine(m_ownFiles[i].path, text))
                return false;
        }
        return true;
    }

    void RevertDefaults() const
    {
        for (const auto& file : m_ownFiles) {
            std::error_code ignored;
            if (fs::is_symlink(file.path, ignored) && !file.stored)
                BringFileInLine(file.path, "");
            else
                BringFileInLine(file.path, file.stored);
        }
    }

    DesktopEntryFacts Facts(const std::vector<AssociatedType>& types) const
    {
        DesktopEntryFacts facts{ m_programPath, "zentaro", {}, {} };
        for (const auto* name : { "icons/zentaro.png", "icons/png/256/zentaro.png" }) {
            if (PathExists(m_programFolder + name))
                facts.icon = m_programFolder + name;
        }
        for (const auto& type : types) {
            if (!type.isOurs)
                continue;
            facts.extensions.push_back(type.extension);
            for (const auto& name : MimeTypesOf(type.extension)) {
                if (!Contains(facts.mimeTypes, name))
                    facts.mimeTypes.push_back(name);
            }
        }
        return facts;
    }

    static std::optional<std::string> TextOf(
        const DesktopEntryFacts& facts, std::string (*make)(const DesktopEntryFacts&))
    {
        return facts.mimeTypes.empty() ? std::nullopt : std::optional(make(facts));
    }

    /// False when one of the two entries cannot be written.
    bool WriteEntries(const DesktopEntryFacts& facts) const
    {
        const auto add = BringFileInLine(DataPath(kAddEntryFile), TextOf(facts, &AddEntryText));
        const auto open = add ? BringFileInLine(DataPath(kOpenEntryFile), TextOf(facts, &OpenEntryText)) : add;
        if (!open)
            return false;
        if (*add || *open)
            RunTool("update-desktop-database", { DataPath("applications") }, true);
        return true;
    }

    void WriteMenus(const DesktopEntryFacts& facts) const
    {
        const auto menu = DataPath("kio/servicemenus/zentaro-add.desktop");
        if (BringFileInLine(menu, TextOf(facts, &AddServiceMenuText)) == true) {
            // Without this right such a file of a user is not trusted.
            std::error_code ignored;
            fs::permissions(menu, fs::perms::owner_exec, fs::perm_options::add, ignored);
        }
        BringFileInLine(DataPath("nemo/actions/zentaro-add.nemo_action"), TextOf(facts, &AddNemoActionText));
    }

    /// Names of files that the system may not know, and our icons: a type has that of its first extension.
    void WriteMimeTypes(const std::vector<std::string>& extensions) const
    {
        std::vector<MimeAddition> additions;
        std::vector<std::string> names;
        for (const auto& extension : extensions) {
            const auto type = UsualType(extension);
            auto addition = std::find_if(
                additions.begin(), additions.end(), [&](const MimeAddition& other) { return other.type == type; });
            if (addition == additions.end()) {
                addition = additions.insert(additions.end(), { type, {}, "" });
                names.push_back(extension.substr(1));
            }
            addition->extensions.push_back(extension);
        }
        const auto icons = BringTypeIcons(names, m_programFolder + "icons/", DataPath("icons/hicolor"));
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (Contains(icons, names[i]))
                additions[i].icon = "zentaro-" + names[i];
        }
        const auto text = additions.empty() ? std::nullopt : std::optional(MimePackageText(additions));
        if (BringFileInLine(DataPath("mime/packages/zentaro.xml"), text) == true)
            RunTool("update-mime-database", { DataPath("mime") }, false);
    }

    std::string m_programPath;
    std::string m_programFolder;
    std::vector<std::string> m_dataFolders;
    std::vector<std::string> m_configFolders;
    std::vector<OwnFile> m_ownFiles; // those of m_defaults.own
    DesktopDefaults m_defaults;
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
