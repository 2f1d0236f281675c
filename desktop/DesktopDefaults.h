#pragma once

#include "desktop/MimeApps.h"

#include <functional>
#include <string>
#include <vector>

namespace zentaro::desktop {

/// True for the desktop entries of this program.
bool IsOurEntry(const std::string& entry);

/// What all the files together say that tell a desktop which program opens a type, and how ours becomes the one.
struct DesktopDefaults {
    std::vector<MimeApps> own;    ///< the user's, in the order in which they count; the last one is every desktop's
    std::vector<MimeApps> others; ///< the system's, in the order in which they count
    std::vector<MimeApps> caches; ///< what the installed programs are made for
    std::function<bool(const std::string& entry)> isInstalled;

    /// The desktop entry of the program that opens files of the type; empty when there is none.
    std::string ProgramOf(const std::string& type, bool withOurs) const;
    /// Puts ours before what was the default, so that this comes back when ours goes.
    void Take(const std::string& type);
    void Release(const std::string& type);
    /// The owner opens the type again, whatever has been done to the files while it was ours.
    void Restore(const std::string& type, const std::string& owner);
};

} // namespace zentaro::desktop
