#pragma once

#include "app/StartUp.h"
#include "platform/HandOver.h"
#include "platform/StringStore.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zentaro {

/// How a process meets the players that were started before it.
struct HandOverService {
    std::function<Result<std::unique_ptr<platform::HandOverEnds>>()> listen;
    std::function<bool(const std::string& handle)> isAlive;
    std::function<platform::HandOverOutcome(const std::string& handle, const std::string& text)> send;
    std::function<std::unique_ptr<platform::HandOverLock>()> lock;
    /// Tells whoever started the process something that no window will show.
    std::function<void(const std::string& text)> tell = [](const std::string&) {};
};

/// Where the per-user store says how a running player is reached: its key, and the name of the handle for paths that
/// are to be added.
std::string HandOverKey();
inline constexpr const char* kAddHandle = "AddHandle";

/// Sees to it that one player receives the files of all starts.
class SingleInstance {
public:
    SingleInstance(HandOverService service, platform::StringStore& store, char separator);

    /// A player that was started before lives, as far as the store tells.
    bool IsPlayerThere();
    /// Decides what this process is. True when it is the player from now on: then later starts can reach it. False when
    /// it was a messenger and is to end at once.
    bool BecomePlayer(StartupRequest request, bool useNewPlayer, bool takesAllMedia = false);
    /// Gives paths that are to be added to the player that runs.
    void AddElsewhere(const std::vector<std::string>& paths);
    /// What this process was asked to open.
    const StartupRequest& Request() const { return m_request; }
    /// From now on texts of later starts arrive, those of before first. Each is answered through its `done`.
    void Receive(std::function<void(std::string text, platform::HandOverDone done)> onText);
    /// The same for the paths that others want to be added.
    void ReceiveAdded(std::function<void(std::string path)> onPath);
    /// Later starts look for another player.
    void Close() { m_ends.reset(); }

private:
    std::string Read(const char* name, const char* fallback);
    void Publish();

    HandOverService m_service;
    platform::StringStore& m_store;
    char m_separator;
    StartupRequest m_request;
    std::unique_ptr<platform::HandOverEnds> m_ends;
};

} // namespace zentaro
