#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace zentaro::platform {

/// Colours that a user has chosen for all programs, as 0xRRGGBB.
struct WishedColours {
    std::uint32_t background = 0;
    std::uint32_t text = 0;
    std::uint32_t selection = 0; ///< behind what is selected
    std::uint32_t selected = 0;  ///< what is selected
    std::uint32_t accent = 0;    ///< of links, focus and progress
    std::uint32_t faint = 0;     ///< of what cannot be used now
};

/// What the user has told the system about the looks of all programs.
struct Wishes {
    bool highContrast = false;
    bool lessMotion = false;
    /// By which text is to be larger than usual, where the scale of the screens does not say so already.
    double textScale = 1;
    std::optional<WishedColours> colours = std::nullopt; ///< only with high contrast, where the system names them
};

/// Takes 50 ms at the most: a system that does not answer has no wishes.
Wishes SystemWishes();

/// Tells of wishes that may be others than before. Sleeps until the system says so.
class WishWatch {
public:
    virtual ~WishWatch() = default;
    /// `changed` is called from any thread, and not any more when the object is gone. Null where nobody would tell.
    static std::unique_ptr<WishWatch> Open(std::function<void(const Wishes&)> changed);
};

} // namespace zentaro::platform
