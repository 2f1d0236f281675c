#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zentaro::desktop {

inline constexpr const char* kOpenEntry = "zentaro.desktop";
inline constexpr const char* kAddEntry = "zentaro-add.desktop";

/// The MIME types of files with that extension (with its dot), the usual one first: the names that versions of the MIME
/// database have for it, and what it may tell from a file's content.
std::vector<std::string> MimeTypesOf(std::string_view extension);

/// A path as the command of a desktop entry: in quotes unless it can do without.
std::string ExecQuoted(const std::string& path);

/// The path that ExecQuoted() has made this of.
std::string PathInExec(std::string_view quoted);

/// What the desktop entries below say. They name the program as the one without which they mean nothing, so that they
/// are not on offer any more when it has been removed.
struct DesktopEntryFacts {
    std::string program; ///< as of ExecQuoted()
    std::string adder;   ///< the program that adds its arguments to the playlist, as of ExecQuoted()
    std::string icon;    ///< a path, or a name of the icon theme
    std::vector<std::string> mimeTypes;
    std::vector<std::string> extensions; ///< with their dots
};

/// The program that opens files of these types.
std::string OpenEntryText(const DesktopEntryFacts& facts);
/// "Add To Playlist" as a program of its own, for every file manager that lists the programs of a type.
std::string AddEntryText(const DesktopEntryFacts& facts);
/// "Add To Playlist" in the menus of Dolphin and its kin.
std::string AddServiceMenuText(const DesktopEntryFacts& facts);
/// The same for Nemo.
std::string AddNemoActionText(const DesktopEntryFacts& facts);

/// A type as our addition to the user's MIME database knows it.
struct MimeAddition {
    std::string type;
    std::vector<std::string> extensions; ///< with their dots
    std::string icon;                    ///< a name of the icon theme; empty: none
};
std::string MimePackageText(const std::vector<MimeAddition>& additions);

} // namespace zentaro::desktop
