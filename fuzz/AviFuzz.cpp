#include "inspect/clsAVIDelay.h"

#include <cstdlib>
#include <sstream>

/// Any bytes are read to an end, and leave numbers behind that the caller can use.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::istringstream file(std::string(reinterpret_cast<const char*>(data), size));
    zentaro::clsAVIDelay avi;
    const bool read = avi.OpenStream(file);
    if (read && size < 12)
        std::abort();
    for (std::int32_t index = -1; index <= avi.StreamCount(); ++index) {
        const bool known = index >= 0 && index < avi.StreamCount();
        if (!known && (avi.StreamIsAudio(index) || avi.StreamDelay(index) != -1))
            std::abort();
    }
    return 0;
}
