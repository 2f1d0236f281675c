#pragma once

#include "app/PlayerScreen.h"
#include "app/StartUp.h"
#include "base/PlayerSettings.h"
#include "platform/HandOver.h"
#include "platform/StringStore.h"
#include "playback/EngineHost.h"
#include "playback/EngineOptions.h"
#include "playlist/Playlist.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace zentaro {

/// How a process meets the players that were started before it.
struct HandOverService {
    std::function<Result<std::unique_ptr<platform::HandOverEnds>>()> listen;
    std::function<bool(const std::string& handle)> isAlive;
    std::function<bool(const std::string& handle, const std::string& text)> send;
    std::function<std::unique_ptr<platform::HandOverLock>()> lock;
};

/// What a player needs from the world.
struct PlayerWorld {
    PlayerScreen& screen;
    EngineFactory& engines;
    platform::StringStore& store;
    HandOverService handOver;
    RandomSource random; ///< uniform in [0, 1)
    std::function<void()> endProcess;
    std::string programFolder;  ///< with a trailing separator
    std::string settingsFolder; ///< with a trailing separator
    char separator = '/';
};

/// The whole program without its window.
class Player {
public:
    explicit Player(PlayerWorld world);
    ~Player();

    /// Brings the program up, decides its role and opens the file of the command line. False when this process was only
    /// a messenger: nothing was shown, and it is to end at once.
    bool Load(const std::string& commandLine);
    /// Saves the settings and ends the process.
    void Unload();

    void LoadConfigurations();
    /// Fails when the file is gone or must not be written; nothing has changed then.
    Result<void> WriteConfigurations();
    void SaveVLCOptions();
    void SetLoadedOptions();

    /// Adds one file and, when `playNow`, plays it. `playFlag` asks for full screen.
    void LoadThumb(const std::string& title, const std::string& path, bool playFlag, bool playNow);
    /// Plays a playlist entry in a fresh engine; an index outside the list does nothing.
    void PlayItem(std::int16_t index, bool fullScreen);
    /// A text has come from a later start.
    void ReceiveText(const std::string& text);
    /// The window has a new size in logical pixels, by the user's hand or by the settings.
    void WindowResized(int width, int height);

    const PlayerSettings& Settings() const { return m_settings; }
    Playlist& Entries() { return m_playlist; }
    EngineHost& Host() { return m_host; }
    bool MediaControlsEnabled() const { return m_mediaControlsEnabled; }
    double PlaybackRate() const { return m_rate; }
    const std::string& CurrentItemPath() const { return m_currentItemPath; }
    const EngineOptions& ItemOptions() const { return m_options; }

private:
    bool BecomePlayer();
    void Publish();
    void OpenStartupFile();
    void OpenFromOutside(const std::string& path);
    void UseSettings(const PlayerSettings& settings);
    void ShowCaption();
    std::string ConfigPath() const;

    PlayerWorld m_world;
    PlayerSettings m_settings;
    EngineOptions m_options;
    EngineHost m_host;
    Playlist m_playlist;
    StartupRequest m_startup;
    std::unique_ptr<platform::HandOverEnds> m_ends;
    std::string m_currentItemPath;
    double m_rate = 1.0;
    bool m_starting = false;
    bool m_replaceOnOpen = true;
    bool m_mediaControlsEnabled = false;
};

} // namespace zentaro
