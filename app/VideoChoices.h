#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zentaro {

class Player;

/// One entry of a menu of which one is in force.
struct VideoChoice {
    std::string caption;
    bool isChecked = false;
    std::function<void()> choose;
};

/// What the video's own menu offers for the item that is loaded; empty where there is nothing to choose.
struct VideoChoices {
    std::vector<VideoChoice> audioTracks;
    std::vector<VideoChoice> subtitles;
    std::vector<VideoChoice> aspectRatios;
    std::vector<VideoChoice> deinterlacing;
    std::vector<VideoChoice> titles; ///< of a disc
    std::vector<VideoChoice> chapters;
    std::vector<VideoChoice> docking; ///< of the playlist
    bool hasVideo = false;
};

/// Asks for a file of subtitles and shows it with the video.
void LoadSubtitleFile(Player& player);

/// As things are now. Choosing later is harmless: an engine that is gone is not asked.
VideoChoices ReadVideoChoices(Player& player);

} // namespace zentaro
