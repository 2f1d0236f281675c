#include "platform/AssociationShell.h"

#include "desktop/DesktopDefaults.h"
#include "desktop/DesktopEntry.h"
#include "platform/ChildProcess.h"
#include "platform/DesktopFiles_linux.h"
#include "platform/Files.h"

#include <QMimeDatabase>
#include <QStandardPaths>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <system_error>

namespace zentaro::platform {

using namespace desktop;

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kCacheLimit = 8 << 20; // bytes
constexpr std::chrono::seconds kOpenerWait{ 5 };

const std::string kOpenEntryFile = std::string("applications/") + kOpenEntry;
const std::string kAddEntryFile = std::string("applications/") + kAddEntry;

bool Contains(const std::vector<std::string>& list, const std::string& text)
{
    return std::find(list.begin(), list.end(), text) != list.end();
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
        // What we have taken could otherwise not be told from what the user has chosen.
        m_isBlind = IsUnreadable(DataPath(kAddEntryFile));
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
        return mayChange && !m_isBlind;
    }

    std::optional<LiveOwner> CurrentOwner(const std::string& extension) override
    {
        if (m_isBlind)
            return std::nullopt;
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
        const auto before = TakenTypes();
        const auto addEntry = ReadDesktopFile(DataPath(kAddEntryFile));
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
        BringFileInLine(DataPath(kAddEntryFile), addEntry);
        return false;
    }

private:
    struct OwnFile {
        std::string path;
        std::optional<std::string> stored;
    };

    std::string DataPath(const std::string& name) const { return m_dataFolders.front() + "/" + name; }

    /// Perhaps for a moment only: not as if nothing were there.
    static bool IsUnreadable(const std::string& path) { return ReadFileText(path, 1).state == FileState::Unreadable; }

    bool ReadOwnDefaults(const std::string& path)
    {
        m_isBlind = m_isBlind || IsUnreadable(path);
        const bool exists = PathExists(path);
        const auto text = ReadDesktopFile(path);
        m_ownFiles.push_back({ path, text });
        m_defaults.own.emplace_back(text.value_or(""));
        return !exists || (text && MayWriteFile(path));
    }

    void ReadOtherDefaults(const std::string& folder)
    {
        for (const auto& name : DefaultsNames()) {
            if (const auto text = ReadDesktopFile(folder + "/" + name))
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

    /// The types that we have taken last: those for which "Add To Playlist" is on offer.
    std::vector<std::string> TakenTypes() const
    {
        const auto list = EntryValue(ReadDesktopFile(DataPath(kAddEntryFile)).value_or(""), "MimeType");
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
        DesktopEntryFacts facts{ m_programPath, ExecQuoted(m_programFolder + "zentaro-add"), "zentaro", {}, {} };
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

    /// An entry of all users, as a package installs it, which one of the same name in the user's folder would hide.
    bool HasCommonEntry() const
    {
        return ReadEntry({ m_dataFolders.begin() + 1, m_dataFolders.end() }, kOpenEntry).has_value();
    }

    /// False when one of the two entries cannot be written.
    bool WriteEntries(const DesktopEntryFacts& facts) const
    {
        const auto add = BringFileInLine(DataPath(kAddEntryFile), TextOf(facts, &AddEntryText));
        // The common entry also says for which types this program is on offer without being their default.
        const auto text = HasCommonEntry() ? std::nullopt : TextOf(facts, &OpenEntryText);
        const auto open = add ? BringFileInLine(DataPath(kOpenEntryFile), text) : add;
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
    bool m_isBlind = false; // a file of the user's cannot be read now
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

std::string HelpFile(const std::string& topic, const std::string& language)
{
    return "help/" + language + "/" + topic + ".html";
}

Result<void> OpenHelp(const std::string& path, const std::string&)
{
    return OpenDocument(path);
}

std::string DefaultProgramsPage()
{
    return {};
}

Result<void> OpenDocument(const std::string& target)
{
    // Each desktop has a tool of its own; this one knows them all, and without it the common library's is tried.
    const auto xdgOpen = FindTool("xdg-open", "");
    const auto tool = xdgOpen ? xdgOpen : FindTool("gio", "");
    const std::vector<std::string> arguments =
        xdgOpen ? std::vector{ target } : std::vector{ std::string("open"), target };
    const auto process = tool ? ShellStart({ *tool, arguments, "", 0, true }) : nullptr;
    // One that still runs has become the browser.
    if (!process || (process->HasEnded(kOpenerWait) && process->HasFailed()))
        return Error{ 0, "No program opens " + target };
    return {};
}

Picture IconInFile(const std::string&, std::int32_t)
{
    return {};
}

} // namespace zentaro::platform
