#include "desktop/HandOverRules.h"

#include <cstdlib>

using namespace zentaro::desktop;

/// The first byte says how large the pieces are in which the rest arrives.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::size_t pieceSize = data[0] + 1U;
    HandOverFrameReader pieces;
    bool isGood = true;
    for (std::size_t at = 0; at < bytes.size(); at += pieceSize) {
        const bool stillGood = pieces.Take(bytes.substr(at, pieceSize));
        if (stillGood && !isGood)
            std::abort(); // what was refused has become good
        isGood = stillGood;
    }
    HandOverFrameReader whole;
    whole.Take(bytes);
    const auto text = pieces.Finish();
    if (text != whole.Finish() || (text && !isGood))
        std::abort();
    // A frame has no second spelling, but for what lies behind a NUL byte.
    if (text && bytes.find('\0', 8) == std::string_view::npos && EncodeHandOverFrame(*text) != bytes)
        std::abort();
    if (const auto number = ParseHandOverHandle(bytes); number && *number == 0)
        std::abort();
    return 0;
}
