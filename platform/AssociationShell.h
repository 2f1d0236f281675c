#pragma once

#include "base/Picture.h"
#include "base/Result.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zentaro::platform {

/// One type of files as the association store has it.
struct AssociatedType {
    std::string extension; ///< with its dot
    std::string owner;     ///< ours, or the program that is to open it; empty: no program
    bool isOurs = false;
};

/// Who opens a type now, on a system whose desktop decides that beside the store.
struct LiveOwner {
    bool isOurs = false;
    std::string owner; ///< empty: no program
    std::string icon;  ///< that program's: a path, or a name of the icon theme; may be empty
};

/// The system's shell, which acts on associations. On Windows it reads the registry itself and is only told about
/// changes. On Linux it is the user's desktop, and what it reads is brought in line with the store.
class AssociationShell {
public:
    virtual ~AssociationShell() = default;

    /// Looks anew at who opens what. False when the desktop takes no change, as when its file of defaults is read-only.
    virtual bool Refresh() = 0;
    /// As of the last Refresh(); nothing where the store itself is the truth, or where it could not be found out.
    virtual std::optional<LiveOwner> CurrentOwner(const std::string& extension) = 0;
    /// One type has changed in the store.
    virtual void AssociationsChanged() = 0;
    /// Makes the desktop do what the types say, as compared with the last Refresh(); writes only what differs. False
    /// when it could not: then the desktop opens all types as before.
    virtual bool BringInLine(const std::vector<AssociatedType>& types) = 0;

    /// `programPath` as of ShortProgramPath(); `programFolder` holds the icons, with a trailing separator.
    static std::unique_ptr<AssociationShell> Open(const std::string& programPath, const std::string& programFolder);
};

/// This executable as a command line of the association store begins: on Windows its short path, elsewhere its
/// absolute path with the quotes that a desktop entry asks for.
std::string ShortProgramPath();

/// Where the help on a topic lies, below the program folder: pages for the browser, but on Windows one file for the
/// whole English help. `topic`: a page's name, "index" for the first one; `language` as of SpeakLanguage.
std::string HelpFile(const std::string& topic, const std::string& language);

/// Opens that file, with its path, at the topic. Fails as OpenDocument.
Result<void> OpenHelp(const std::string& path, const std::string& topic);

/// The address of the page in the system's settings on which its user gives types of files to programs; empty where
/// programs do that themselves.
std::string DefaultProgramsPage();

/// Opens a file (an absolute path) or a web address in the program that the user has chosen for it. Fails when the
/// system knows no such program; on Linux its tools take up to some seconds to find that out.
Result<void> OpenDocument(const std::string& target);

/// The icon at that place of a program or a library; a negative number is the icon's own number there. No picture when
/// there is none, and on systems whose programs hold no icons.
Picture IconInFile(const std::string& file, std::int32_t index);

} // namespace zentaro::platform
