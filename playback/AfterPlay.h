#pragma once

#include "platform/Power.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

namespace zentaro {

/// The command keys of the choices; the action's value is the index.
inline constexpr std::array<std::string_view, 4> kAfterPlayKeys{ "Donothing", "ExitZentaro", "RestartTheComputer",
    "ShutdownTheComputer" };

/// What is to happen when playback has run out. Lives as long as the process: every start begins with "Donothing".
class AfterPlay {
public:
    std::int16_t AfterPlayAction() const { return m_action; }
    /// Index of the one choice that the command menu marks.
    std::size_t MarkedItem() const { return m_markedItem; }
    /// Index of the one that the classic menu checks when it opens; nothing for an action that has no item.
    std::optional<std::size_t> ClassicMarkedItem() const;

    /// Stores the action and marks its item. A value that has no item is stored too, and the marks stay.
    void DoAfter(std::int16_t action);

    /// Playback has run out. The action stays: a computer that was not switched off is asked again the next time.
    /// `asNamed`: each choice does what its key says.
    void DoAfterFinishPlay(
        platform::Power& power, const std::function<void()>& closeWindow, bool asNamed = false) const;

private:
    std::int16_t m_action = 0;
    std::size_t m_markedItem = 0;
};

} // namespace zentaro
