#include "playlist/MediaTypes.h"

#include "base/Paths.h"

#include <algorithm>
#include <array>

namespace zentaro {

bool IsMediaFile(std::string_view path, char separator, bool all)
{
    constexpr std::array<std::string_view, 34> others = { "flac", "opus", "webm", "ts", "mts", "m2ts", "m2t", "vob",
        "ogv", "oga", "spx", "aif", "aiff", "ape", "wv", "mpc", "tta", "ac3", "eac3", "dts", "amr", "au", "caf", "mxf",
        "rm", "rmvb", "divx", "m2v", "m1v", "mpv", "f4v", "nut", "dv", "mp2" };
    return IsSupportedFile(path, separator)
        || (all && std::find(others.begin(), others.end(), LowerExtension(path, separator)) != others.end());
}

} // namespace zentaro
