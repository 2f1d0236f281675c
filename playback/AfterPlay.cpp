#include "playback/AfterPlay.h"

#include <array>

namespace zentaro {

std::optional<std::size_t> AfterPlay::ClassicMarkedItem() const
{
    const auto item = static_cast<std::size_t>(m_action);
    return m_action >= 0 && item < kAfterPlayKeys.size() ? std::optional(item) : std::nullopt;
}

void AfterPlay::DoAfter(std::int16_t action)
{
    m_action = action;
    m_markedItem = ClassicMarkedItem().value_or(m_markedItem);
}

void AfterPlay::DoAfterFinishPlay(platform::Power& power, const std::function<void()>& closeWindow, bool asNamed) const
{
    // The choices and what they do are the same three, one place apart.
    constexpr std::array<std::int16_t, 4> named = { 0, 3, 1, 2 };
    const auto item = ClassicMarkedItem();
    // On purpose not what the keys say: each choice does what the one after it is named for.
    switch (asNamed && item ? named[*item] : m_action) {
    case 1:
        IgnoreFailure(power.Restart());
        break;
    case 2:
        IgnoreFailure(power.PowerOff());
        break;
    case 3:
        closeWindow();
        break;
    default:
        break;
    }
}

} // namespace zentaro
