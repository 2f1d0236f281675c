#pragma once

#include "inspect/ToolCommand.h"

#include <string>
#include <vector>

namespace zentaro {

struct ToolContext;

/// The longest sides of covers, in px: to be looked at, and of a row of the list.
inline constexpr int kCoverSide = 1000;
inline constexpr int kRowCoverSide = 320;

/// Which of the files of a folder is the cover of the songs in it: "cover", "folder" or "front", a JPEG or PNG file, in
/// any letter case; empty for none.
std::string CoverAmong(const std::vector<std::string>& names);

/// The path of such a file beside the song; empty for none.
std::string CoverBeside(const std::string& song, char separator);

/// The command that writes the first picture of a sound or picture file into `output`, a JPEG file with sides of `side`
/// px at the most.
ToolCommand CoverCommand(const std::string& ffmpeg, const std::string& path, const std::string& output, int side);

/// Writes the song's own cover, or that beside it, into `output`. False when it has none.
bool MakeCover(const std::string& ffmpeg, const std::string& song, char separator, const std::string& output, int side,
    ToolContext& tools);

} // namespace zentaro
