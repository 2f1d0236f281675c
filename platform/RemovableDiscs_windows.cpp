#include "platform/RemovableDiscs.h"

#include <windows.h>

namespace zentaro::platform {

bool IsOnRemovableDisc(const std::string& path)
{
    if (path.size() < 2 || path[1] != ':')
        return false;
    const UINT kind = GetDriveTypeA((path.substr(0, 2) + "\\").c_str());
    return kind == DRIVE_REMOVABLE || kind == DRIVE_CDROM;
}

bool IsOnOtherMachine(const std::string& path)
{
    if (path.starts_with("\\\\") || path.starts_with("//"))
        return !path.starts_with("\\\\?\\") && !path.starts_with("\\\\.\\");
    return path.size() >= 2 && path[1] == ':' && GetDriveTypeA((path.substr(0, 2) + "\\").c_str()) == DRIVE_REMOTE;
}

} // namespace zentaro::platform
