#pragma once

namespace zentaro {

class Player;
struct FoundFiles;

/// Asks for a name and writes the playlist to that file of a list.
void SaveList(Player& player);

/// Gives the subtitles to what plays, and says which entries of lists are missing.
void TakeFound(Player& player, const FoundFiles& found);

} // namespace zentaro
