#pragma once

#include "assoc/AssociationTable.h"
#include "platform/AssociationShell.h"
#include "platform/StringStore.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zentaro {

/// By media extension; any value but 0: the type is to be ours.
using AssociationFlags = std::array<std::int16_t, kMediaExtensions.size()>;

/// Makes this program the one that opens a type of files, and hands the type back to whom it belonged to before.
/// Nothing is reported: where the store or the desktop takes no change, all types stay as they are.
class ModAssoc {
public:
    /// `programPath` as of ShortProgramPath(); `programFolder` with a trailing separator.
    ModAssoc(platform::StringStore& store, platform::AssociationShell& shell, std::string programPath,
        std::string programFolder, char separator);

    /// Takes every type whose flag is set and releases every other; writes only what differs.
    void ApplyAssociations(const AssociationFlags& flags);
    /// One type in the store; the desktop follows with ApplyAssociations(). 0 to 23; any other index does nothing.
    void AssociateType(std::int16_t index);
    void UnassociateType(std::int16_t index);
    /// The store learns to whom other hands have given types since it was written.
    void AdoptLiveOwners();

    /// One command of a type: `suffix` follows the file's name. An empty icon stands for the program's own. False when
    /// the store has not taken all of it.
    bool RegisterVerb(const std::string& progId, const std::string& description, const std::string& verb,
        const std::string& icon, const std::string& suffix);
    /// A Windows user has given the type to another program in the system's own settings. That rules, whatever stands
    /// in the store, and only the user can change it. 0 to 23.
    bool IsDecidedElsewhere(int index);

    /// 1 or 0.
    std::int16_t IsOurs(const std::string& extension, const std::string& progId);
    void TakeExtension(const std::string& extension, const std::string& progId);
    void ReleaseExtension(const std::string& extension, const std::string& progId);

private:
    void Adopt();
    std::string Read(platform::StringStore::Root root, const std::string& key, const std::string& name);
    bool Write(
        platform::StringStore::Root root, const std::string& key, const std::string& name, const std::string& text);
    void Delete(platform::StringStore::Root root, const std::string& key, const std::string& name);
    std::vector<platform::AssociatedType> Types();

    platform::StringStore& m_store;
    platform::AssociationShell& m_shell;
    std::string m_programPath;
    std::string m_programFolder;
    char m_separator;
};

} // namespace zentaro
