#pragma once

#include "assoc/ModAssoc.h"
#include "assoc/ModIcons.h"

#include <functional>
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
};

/// A row of the options list.
struct AssociationChoice {
    std::string listText;
    Picture icon; ///< of the program that opens the type now
};

/// The types of files that this program is to open.
class Associations {
public:
    Associations(AssociationService service, platform::StringStore& store, char separator);

    /// Takes and releases types as the flags say.
    void Apply(const AssociationFlags& flags);
    /// A start leaves them for when all that the user waits for is done.
    void Postpone() { m_isPending = m_modAssoc.has_value(); }
    /// Applies what was postponed and not applied since.
    void ApplyPostponed(const AssociationFlags& flags);
    /// The 24 rows, by index of the flags.
    std::vector<AssociationChoice> Choices();

private:
    AssociationService m_service;
    platform::StringStore& m_store;
    char m_separator;
    std::optional<ModAssoc> m_modAssoc;
    bool m_isPending = false;
};

} // namespace zentaro
