#pragma once

#include "inspect/ToolCommand.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace zentaro {

inline constexpr std::size_t kBars = 32;     ///< from the deepest tones to the highest
inline constexpr int kBarPictures = 30;      ///< a second
inline constexpr int kBarSoundRate = 22'050; ///< samples a second of the sound that they are worked out from

/// How high bars stand at a moment of a sound: 0 for silence, 255 for all that a file can hold.
using BarPicture = std::array<std::uint8_t, kBars>;

/// A piece of a file's sound.
struct SoundPiece {
    std::string path;
    int start = 0;  ///< seconds
    int length = 0; ///< seconds
};

/// The command that writes the piece into `output`: one channel of 16 bit samples at kBarSoundRate, and nothing else.
ToolCommand SoundCommand(const std::string& ffmpeg, const SoundPiece& piece, const std::string& output);

/// The pictures of a sound, one after the other: the whole piece that `samples` holds.
std::vector<BarPicture> BarsOf(std::span<const std::int16_t> samples);

} // namespace zentaro
