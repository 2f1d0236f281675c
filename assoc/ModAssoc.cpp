#include "assoc/ModAssoc.h"

#include <utility>

namespace zentaro {

namespace {

using Root = platform::StringStore::Root;

/// Where a Windows shell keeps what the user has chosen for a type.
std::string FileExtsKey(const std::string& extension)
{
    return "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\" + extension;
}

} // namespace

ModAssoc::ModAssoc(platform::StringStore& store, platform::AssociationShell& shell, std::string programPath,
    std::string programFolder, char separator)
    : m_store(store)
    , m_shell(shell)
    , m_programPath(std::move(programPath))
    , m_programFolder(std::move(programFolder))
    , m_separator(separator)
{
}

void ModAssoc::ApplyAssociations(const AssociationFlags& flags)
{
    if (!m_shell.Refresh())
        return;
    m_store.BeginBatch();
    Adopt();
    for (std::size_t i = 0; i < flags.size(); ++i) {
        const auto index = static_cast<std::int16_t>(i);
        if (flags[i] != 0)
            AssociateType(index);
        else
            UnassociateType(index);
    }
    // The store follows only where the desktop went ahead: it must not claim a type that others open.
    if (m_shell.BringInLine(Types()))
        IgnoreFailure(m_store.CommitBatch());
    else
        m_store.DropBatch();
}

void ModAssoc::AssociateType(std::int16_t index)
{
    if (index < 0 || index >= kAssociationCount)
        return;
    const auto row = AssociationRowAt(index, m_separator);
    const auto icon = m_programFolder + row.iconFile;
    // A type whose commands are missing would belong to nobody.
    if (RegisterVerb(row.progId, row.description, "open", icon, "")
        && RegisterVerb(row.progId, row.description, "Add To Playlist", icon, " *Add"))
        TakeExtension(row.extension, row.progId);
}

void ModAssoc::UnassociateType(std::int16_t index)
{
    if (index < 0 || index >= kAssociationCount)
        return;
    const auto row = AssociationRowAt(index, m_separator);
    ReleaseExtension(row.extension, row.progId);
}

void ModAssoc::AdoptLiveOwners()
{
    m_shell.Refresh();
    m_store.BeginBatch();
    Adopt();
    IgnoreFailure(m_store.CommitBatch());
}

void ModAssoc::Adopt()
{
    for (int i = 0; i < kAssociationCount; ++i) {
        const auto extension = AssociationRowAt(i, m_separator).extension;
        const auto live = m_shell.CurrentOwner(extension);
        if (!live || live->isOurs)
            continue;
        if (Read(Root::ClassesRoot, extension, "") != live->owner)
            Write(Root::ClassesRoot, extension, "", live->owner);
        if (!live->owner.empty())
            Write(Root::ClassesRoot, live->owner + "\\DefaultIcon", "", live->icon);
    }
}

bool ModAssoc::RegisterVerb(const std::string& progId, const std::string& description, const std::string& verb,
    const std::string& icon, const std::string& suffix)
{
    const auto shell = progId + "\\shell";
    return Write(Root::ClassesRoot, progId, "", description) && Write(Root::ClassesRoot, shell, "", "")
        && Write(Root::ClassesRoot, shell + "\\" + verb, "", "")
        && Write(Root::ClassesRoot, shell + "\\" + verb + "\\command", "", m_programPath + " %1" + suffix)
        && Write(Root::ClassesRoot, progId + "\\DefaultIcon", "", icon.empty() ? m_programPath : icon);
}

bool ModAssoc::IsDecidedElsewhere(int index)
{
    const auto row = AssociationRowAt(index, m_separator);
    const auto chosen = Read(Root::CurrentUser, FileExtsKey(row.extension) + "\\UserChoice", "ProgId");
    return !chosen.empty() && chosen != row.progId && chosen != "Applications\\zentaro.exe";
}

std::int16_t ModAssoc::IsOurs(const std::string& extension, const std::string& progId)
{
    return Read(Root::ClassesRoot, extension, "") == progId ? 1 : 0;
}

void ModAssoc::TakeExtension(const std::string& extension, const std::string& progId)
{
    if (IsOurs(extension, progId) == 1)
        return;
    // A failure goes unsaid, but what cannot be given back is not taken, and what is not taken leaves no traces.
    if (!Write(Root::ClassesRoot, extension, "OldAss", Read(Root::ClassesRoot, extension, "")))
        return;
    if (!Write(Root::ClassesRoot, extension, "", progId)) {
        Delete(Root::ClassesRoot, extension, "OldAss");
        return;
    }
    const auto chosen = FileExtsKey(extension);
    Write(Root::CurrentUser, chosen, "OldProgID", Read(Root::CurrentUser, chosen, "ProgID"));
    Write(Root::CurrentUser, chosen, "ProgID", progId);
    m_shell.AssociationsChanged();
}

void ModAssoc::ReleaseExtension(const std::string& extension, const std::string& progId)
{
    if (IsOurs(extension, progId) == 0)
        return;
    // The backup stays until what it holds is back in its place.
    if (!Write(Root::ClassesRoot, extension, "", Read(Root::ClassesRoot, extension, "OldAss")))
        return;
    Write(Root::ClassesRoot, extension, "OldAss", "Dummy");
    Delete(Root::ClassesRoot, extension, "OldAss");
    const auto chosen = FileExtsKey(extension);
    const auto before = Read(Root::CurrentUser, chosen, "OldProgID");
    // The two roots are swapped on purpose: the user's choice keeps its backup, and the type a mark.
    Write(Root::ClassesRoot, extension, "OldProgID", "Dummy");
    Write(Root::CurrentUser, chosen, "ProgID", before);
    Delete(Root::ClassesRoot, chosen, "OldProgID");
    m_shell.AssociationsChanged();
}

std::string ModAssoc::Read(Root root, const std::string& key, const std::string& name)
{
    return m_store.Read(root, key, name, "");
}

bool ModAssoc::Write(Root root, const std::string& key, const std::string& name, const std::string& text)
{
    // A fallback that differs from the text, so that a missing value is not taken for an empty one.
    if (m_store.Read(root, key, name, text + "?") == text)
        return true;
    return bool(m_store.Write(root, key, name, text));
}

void ModAssoc::Delete(Root root, const std::string& key, const std::string& name)
{
    IgnoreFailure(m_store.Delete(root, key, name));
}

std::vector<platform::AssociatedType> ModAssoc::Types()
{
    std::vector<platform::AssociatedType> types;
    for (int i = 0; i < kAssociationCount; ++i) {
        const auto row = AssociationRowAt(i, m_separator);
        types.push_back(
            { row.extension, Read(Root::ClassesRoot, row.extension, ""), IsOurs(row.extension, row.progId) == 1 });
    }
    return types;
}

} // namespace zentaro
