#include "desktop/MprisRules.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// Whatever a program of the session sends as a URI or as a track: it is understood or refused. A path has one URI.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    using namespace zentaro::desktop;
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    MprisLoop(text);
    if (const auto track = MprisTrackOf(text); track != 0 && MprisTrackOf(MprisTrackPath(track)) != track)
        std::abort();
    if (const auto path = PathOfFileUri(text); path && PathOfFileUri(FileUri(*path)) != path)
        std::abort();
    return 0;
}
