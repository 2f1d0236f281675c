#pragma once

#include "playback/Engine.h"

#include <optional>
#include <string>
#include <vector>

namespace zentaro {

/// What a user can jump to, as a menu shows it.
struct PartChoice {
    std::vector<std::string> captions;
    int present = -1; ///< index, below 0 when it is none of them
};

/// How a menu lists the titles of a disc: by name, those without a name by a number from 1, with the length where it is
/// known.
std::vector<std::string> TitleCaptions(const std::vector<DiscPart>& titles);
/// Likewise the chapters of a title, each behind the time at which it starts, where that is known.
std::vector<std::string> ChapterCaptions(const std::vector<DiscPart>& chapters);

/// Whether the engine knows where the chapters start; without that they can be counted only.
bool HaveStarts(const std::vector<DiscPart>& chapters);
/// The chapter that plays at `time` (ms); below 0 before the first one, and where no start is known.
int ChapterAt(const std::vector<DiscPart>& chapters, double time);
/// The chapter whose start is not further than `reach` (ms) from `time` (ms), the nearest one; below 0 for none.
int ChapterNear(const std::vector<DiscPart>& chapters, double time, double reach);
/// Where a step forward (1) or back (-1) leads: to the next chapter, to the start of the present one, or, in its first
/// three seconds, to the one before. `present`: the index that the engine tells, for chapters without starts.
std::optional<int> ChapterAfterStep(const std::vector<DiscPart>& chapters, int present, double time, int direction);

} // namespace zentaro
