#include "platform/RemovableDiscs.h"

#include <cstring>
#include <windows.h>

namespace zentaro::platform {

namespace {

/// Of the path's drive; DRIVE_REMOTE for a share.
UINT KindOfPlace(std::string path)
{
    const std::string whole = R"(\\?\)"; // the system changes nothing of what follows
    if (path.starts_with(whole)) {
        path.erase(0, whole.size());
        if (_strnicmp(path.c_str(), R"(UNC\)", 4) == 0)
            return DRIVE_REMOTE;
    } else if (path.starts_with("//") || (path.starts_with(R"(\\)") && !path.starts_with(R"(\\.\)"))) {
        return DRIVE_REMOTE;
    }
    return path.size() >= 2 && path[1] == ':' ? GetDriveTypeA((path.substr(0, 2) + "\\").c_str()) : DRIVE_UNKNOWN;
}

} // namespace

bool IsOnRemovableDisc(const std::string& path)
{
    const UINT kind = KindOfPlace(path);
    return kind == DRIVE_REMOVABLE || kind == DRIVE_CDROM;
}

bool IsOnOtherMachine(const std::string& path)
{
    return KindOfPlace(path) == DRIVE_REMOTE;
}

} // namespace zentaro::platform
