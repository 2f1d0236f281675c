#pragma once

#include "playlist/PlayOrder.h"

#include <cstdint>
#include <optional>

namespace zentaro {

/// Values of `PlayerSettings::PlayMode`.
inline constexpr std::int32_t kPlayNormal = 0;
inline constexpr std::int32_t kPlayContinuous = 1;
inline constexpr std::int32_t kPlayShuffle = 2;

/// Values of `PlayerSettings::RepeatMode`.
inline constexpr std::int32_t kNoRepeat = 0;
inline constexpr std::int32_t kRepeatSingle = 1;
inline constexpr std::int32_t kRepeatAll = 2;

/// The position behind the current one, always wrapping; nothing when the order is empty. "Next" plays the entry whose
/// index is the position itself, not the one that the order names there.
std::optional<int> NextPosition(const PlayOrder& order);
/// The position before the current one, likewise; before the first and from no position it is the last.
std::optional<int> PreviousPosition(const PlayOrder& order);

/// What follows when an entry has been played to its end.
struct EndOfItem {
    enum class Action {
        RestartSame,      // stop, then play the selected entry again
        StopAndAfterPlay, // stop, then the after-play action
        Play              // play the entry `index`
    };
    Action action = Action::StopAndAfterPlay;
    /// With Play: the new position in the order, and the index that the order names there. After removals the index can
    /// be past the end; kNone when the order is empty.
    int position = PlayOrder::kNone;
    int index = PlayOrder::kNone;
    bool operator==(const EndOfItem&) const = default;
};

/// Decides only; with Play the position has moved already.
EndOfItem DecideEndOfItem(std::int32_t playMode, std::int32_t repeatMode, PlayOrder& order);

} // namespace zentaro
