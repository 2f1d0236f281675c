#pragma once

#include <string>
#include <string_view>

namespace zentaro {

/// What was in hand when the player was used last.
struct Present {
    std::string path; ///< of what was played last
    double time = 0;  ///< ms
    double length = 0;
    int volume = 100;
    int selected = -1;
    int position = -1; ///< in the play order
    bool operator==(const Present&) const = default;

    std::string Format() const;
    /// Reads what Format has written; what is damaged is as in a new one.
    static Present Parse(std::string_view text);
};

} // namespace zentaro
