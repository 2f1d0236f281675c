#pragma once

#include "assoc/ModAssoc.h"
#include "assoc/ModIcons.h"

#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace zentaro {

/// Where types of files are given to this program.
struct AssociationService {
    platform::AssociationShell* shell = nullptr; ///< without one, types are left alone
    std::string programPath;                     ///< as of platform::ShortProgramPath()
    std::string programFolder;                   ///< with a trailing separator
    ModIcons::Loaders icons;
    /// As RunInBackground(): a desktop's files lie on a disk that may be slow.
    std::function<void(std::function<std::function<void()>()>)> background = [](auto work) { work()(); };
};

/// A row of the options list.
struct AssociationChoice {
    std::string listText;
    Picture icon;                    ///< of the program that opens the type now
    bool isDecidedElsewhere = false; ///< as of ModAssoc
};

/// The types of files that this program is to open.
class Associations {
public:
    /// `store` is used by nobody else.
    Associations(AssociationService service, platform::StringStore& store, char separator);

    /// Takes and releases types as the flags say, soon.
    void Apply(const AssociationFlags& flags);
    /// A start leaves them for when all that the user waits for is done.
    void Postpone() { m_isPending = m_modAssoc.has_value(); }
    /// Applies what was postponed and not applied since.
    void ApplyPostponed(const AssociationFlags& flags);
    /// The same, and what still waits to be applied; nothing is under way when it returns.
    void Close(const AssociationFlags& flags);
    /// Gives the 24 rows, by index of the flags.
    void Choices(std::function<void(std::vector<AssociationChoice>)> done);

private:
    void ApplyDue();
    std::vector<AssociationChoice> ReadChoices();

    AssociationService m_service;
    platform::StringStore& m_store;
    char m_separator;
    bool m_isPending = false;
    std::mutex m_working; ///< held while types are looked at or changed
    std::optional<ModAssoc> m_modAssoc;
    std::mutex m_mutex; ///< of the last; nobody holds it while the disk works
    std::optional<AssociationFlags> m_due;
};

} // namespace zentaro
