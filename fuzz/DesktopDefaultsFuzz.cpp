#include "desktop/DesktopDefaults.h"
#include "desktop/DesktopEntry.h"

#include <cstdint>
#include <cstdlib>

using namespace zentaro::desktop;

/// The user's file of defaults, and behind a NUL byte what the installed programs are made for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    const auto end = text.find('\0');
    DesktopDefaults defaults;
    defaults.own.emplace_back(text.substr(0, end));
    defaults.caches.emplace_back(end == std::string::npos ? "" : text.substr(end + 1));
    defaults.isInstalled = [](const std::string& entry) { return entry.ends_with(".desktop"); };
    if (defaults.own.back().Text() != text.substr(0, end))
        std::abort();
    for (const std::string type : { "video/mp4", "audio/mpeg" }) {
        const auto before = defaults.ProgramOf(type, false);
        defaults.Take(type);
        const auto taken = defaults.own.back().Text();
        if (defaults.ProgramOf(type, true) != kOpenEntry)
            std::abort();
        defaults.Take(type);
        if (defaults.own.back().Text() != taken)
            std::abort();
        defaults.Release(type);
        defaults.Restore(type, before);
        const auto after = defaults.ProgramOf(type, false);
        if (after != before)
            std::abort();
    }
    return 0;
}
