#pragma once

#include <span>
#include <string_view>

namespace zentaro {

class Player;

/// Keys beside those of the commands, as people are used to from other players.
struct PlayerKey {
    std::string_view label;                 ///< as help and tooltips name them
    std::span<const std::string_view> keys; ///< names of single keys such as "Shift+Left"
    std::string_view what;                  ///< what they do, a few words
    void (*run)(Player& player, int index); ///< `index`: which of the keys was pressed
    bool repeats = false;                   ///< again and again while it is held
};

/// In the order in which help lists them.
std::span<const PlayerKey> PlayerKeys();

} // namespace zentaro
