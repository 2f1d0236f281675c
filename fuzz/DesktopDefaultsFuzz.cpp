#include "desktop/DesktopDefaults.h"
#include "desktop/DesktopEntry.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

using namespace zentaro::desktop;

/// Behind a NUL byte each: the user's file of defaults, what the installed programs are made for, and the user's file
/// for one desktop alone.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::array<std::string, 3> texts;
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    for (auto& text : texts) {
        text = rest.substr(0, rest.find('\0'));
        rest.remove_prefix(std::min(text.size() + 1, rest.size()));
    }
    DesktopDefaults defaults;
    if (!texts[2].empty())
        defaults.own.emplace_back(texts[2]);
    defaults.own.emplace_back(texts[0]);
    defaults.caches.emplace_back(texts[1]);
    defaults.isInstalled = [](const std::string& entry) { return entry.ends_with(".desktop"); };
    if (defaults.own.back().Text() != texts[0])
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
