#pragma once

#include "playlist/LoadThumb.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zentaro {

/// Orders names as people do: numbers by their value, letters of ASCII without case.
bool NaturalLess(std::string_view a, std::string_view b);

/// Asked for every name of a folder that is read; may pump messages. False stops the reading.
using GoOn = std::function<bool()>;

/// The media files among dropped names, in order, the others left out. A folder stands for its media files in natural
/// order, its own before those of its sub-folders; folders that cannot be read are left out, links to folders that were
/// read before are not followed again. `takesAll`: as IsMediaFile. `skipped` gets the names of files that are no media.
std::vector<std::string> DroppedMediaFiles(const std::vector<std::string>& paths, char separator, const GoOn& goOn,
    bool takesAll = false, std::vector<std::string>* skipped = nullptr);

/// One request per path, its file name as the title; only the first one plays, and only with `playFirst`.
std::vector<AddRequest> AddRequests(const std::vector<std::string>& paths, char separator, bool playFirst);

} // namespace zentaro
