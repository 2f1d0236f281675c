#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zentaro {

/// What a start was asked to open.
struct StartupRequest {
    std::string StartupArgument; ///< the path, without quotes and without "*Add"; empty when there is none
    std::string handOverText;    ///< what a running player is told: the path as above, "*Add" included
    bool ReplaceOnOpen = true;   ///< false: add the file instead of playing it
};

/// Takes the command line apart. Quotes are removed, unless the text with them names an existing file: then they belong
/// to its name. The path of a file that is there is written the shortest way, so that it counts once.
StartupRequest ReadCommandLine(
    const std::string& commandLine, const std::function<bool(const std::string&)>& fileExists);

/// The files that the arguments of a start name, in full; none unless there are several, and all of them are files.
std::vector<std::string> NamedFiles(const std::vector<std::string>& arguments);

/// What the store says about a player that was started before.
struct PublishedHandles {
    std::string command = "-1"; ///< "-1": none was ever published
    std::string probe;
};

/// What this process is to be.
struct StartRole {
    enum class Kind {
        Player,    ///< publish its own handles and go on
        Messenger, ///< send the text, if any, to the handle, and end when somebody took it
    };
    Kind kind = Kind::Player;
    std::string handle;
    std::string text; ///< empty: nothing is sent
    bool operator==(const StartRole&) const = default;
};

/// Decides between player and messenger. `isAlive` tells whether a probe handle's owner lives.
StartRole DecideRole(const StartupRequest& request, const PublishedHandles& handles, bool useNewPlayer,
    const std::function<bool(const std::string&)>& isAlive, char separator, bool takesAllMedia = false);

} // namespace zentaro
