#include "platform/EngineLibrary.h"
#include "platform/Files.h"
#include "platform/System_windows.h"

#include <array>
#include <cstring>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace zentaro::platform {

namespace {

constexpr const char* kName = "libvlc.dll";
constexpr const char* kMissing =
    "libVLC was not found: files cannot be played. Please install VLC 3 (the 64-bit one) from "
    "https://www.videolan.org/vlc/ and start Zentaro again, or put its \"libvlc.dll\", \"libvlccore.dll\" and "
    "\"plugins\" into the folder that Zentaro lies in.\r\n\r\nNothing was lost: your playlist, history and options "
    "are as they were.";

/// Where an installed VLC says that it lies; empty when it does not.
std::string InstalledFolder(HKEY root, DWORD view)
{
    std::array<char, 32768> text{};
    DWORD size = text.size() - 1;
    const DWORD flags = RRF_RT_REG_SZ | view;
    if (RegGetValueA(root, "Software\\VideoLAN\\VLC", "InstallDir", flags, nullptr, text.data(), &size)
        != ERROR_SUCCESS)
        return {};
    return text.data();
}

/// The library stays loaded when it is one that we can use: the calls that are bound to its name find it so.
bool Load(const std::string& folder)
{
    const auto path = folder + "\\" + kName;
    if (folder.empty() || !IsAbsolutePath(path) || !PathExists(path))
        return false;
    // Its own folder comes first where it looks for the rest of itself.
    const HMODULE library = LoadLibraryExA(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (library == nullptr)
        return false;
    const auto version =
        reinterpret_cast<const char* (*)()>(reinterpret_cast<void*>(GetProcAddress(library, "libvlc_get_version")));
    if (version != nullptr && std::strncmp(version(), "3.", 2) == 0)
        return true;
    FreeLibrary(library);
    return false;
}

} // namespace

Result<void> LoadEngineLibrary()
{
    // A library of another kind of processor is no reason for a box of the system's.
    DWORD before = 0;
    SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before);
    bool isLoaded = Load(ExecutableFolder());
    for (const auto root : { HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE }) {
        for (const auto view : { RRF_SUBKEY_WOW6464KEY, RRF_SUBKEY_WOW6432KEY })
            isLoaded = isLoaded || Load(InstalledFolder(root, static_cast<DWORD>(view)));
    }
    SetThreadErrorMode(before, nullptr);
    if (!isLoaded)
        return Error{ ERROR_MOD_NOT_FOUND, kMissing };
    return {};
}

std::optional<PluginList> OwnPluginList()
{
    std::array<char, 32768> path{};
    const HMODULE library = GetModuleHandleA(kName);
    if (library == nullptr || GetModuleFileNameA(library, path.data(), path.size()) == 0)
        return std::nullopt;
    const auto folder = ExecutableFolder() + "\\";
    if (folder + kName != path.data())
        return std::nullopt;
    const auto plugins = folder + "plugins\\";
    WIN32_FIND_DATAA found{};
    const HANDLE search = FindFirstFileA((plugins + "access\\*.dll").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return std::nullopt;
    FindClose(search);
    // The compiler's own call, as the library's: it need not agree with the system about summer time.
    struct _stat64 status { };
    if (_stat64((plugins + "access\\" + found.cFileName).c_str(), &status) != 0)
        return std::nullopt;
    return PluginList{ plugins + "plugins.dat", status.st_mtime };
}

} // namespace zentaro::platform
