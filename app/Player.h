#pragma once

#include "app/Associations.h"
#include "app/KeyMap.h"
#include "app/ListEditor.h"
#include "app/Memory.h"
#include "app/OwnChoices.h"
#include "app/OwnSettings.h"
#include "app/PlayTools.h"
#include "app/Sequencer.h"
#include "app/SingleInstance.h"

#include <chrono>
#include <functional>
#include <string>

namespace zentaro {

/// What a player needs from the world.
struct PlayerWorld {
    EngineFactory& engines;
    InspectionRunner& inspections; ///< results come back through Library::InspectionCompleted
    platform::StringStore& store;
    platform::StringStore& historyStore;     ///< as the other, but used from another thread
    platform::StringStore& associationStore; ///< the same
    platform::Power& power;
    HandOverService handOver;
    RandomSource random; ///< uniform in [0, 1)
    std::function<bool(const std::string& path)> fileExists;
    std::function<void()> endProcess;
    OwnSettings& own;               ///< has been loaded
    std::vector<std::string> files; ///< as NamedFiles
    std::string settingsFolder;     ///< with a trailing separator
    char separator = '/';           ///< between the folders of a path
    DiscService discs;
    AssociationService associations = {};
    /// Calls back after that time, on this thread.
    std::function<void(std::chrono::milliseconds, std::function<void()>)> after;
    /// As LibraryHost::RunInBackground.
    std::function<void(std::function<std::function<void()>()>)> runInBackground;
    /// The same, for the history.
    History::Background runForHistory = [](auto work) { work()(); };
    /// Holds the screen saver and sleep off, or lets them come again.
    std::function<void(bool held)> holdOffSleep = [](bool) {};
    /// Whether a path lies on a disc that is taken out.
    std::function<bool(const std::string& path)> isRemovable = [](const std::string&) { return false; };
};

/// The whole program without its window: the sum of its rooms.
class Player : private TransportObserver, private LibraryHost {
public:
    explicit Player(PlayerWorld world);
    ~Player() override;

    /// May come before Load: what takes longest of opening the file of the command line begins, beside the window.
    void Expect(const std::string& commandLine);
    /// Whether this process is most likely the player, and no messenger of one. Known after Expect().
    bool IsExpected() const { return m_isExpected; }
    /// Brings the program up, decides its role and opens the file of the command line. False when this process was only
    /// a messenger: nothing was shown, and it is to end at once.
    bool Load(const std::string& commandLine, PlayerFace face);
    /// Saves the settings and ends the process.
    void Unload();
    /// Writes the settings; fails when the file is gone or must not be written, and then has changed nothing.
    Result<void> WriteConfigurations();
    /// Takes over what was changed in the options dialog, while it is open.
    void CommitOptions(const SettingsPages& shown, const SettingsPages& chosen);

    /// Does what the command of this key is for, as the menu strip and its shortcuts ask for it. A key that no item
    /// has, and an item that is disabled or hidden, do nothing.
    void RunCommand(std::string_view key);
    /// Adds the file of that slot of the history, and plays it.
    void PlayHistoryItem(int slot);
    /// As the functions of app/Snapshots.h.
    void TakeSnapshot();
    bool CanTakeSnapshot() const;
    /// The position timer's tick, every 500 ms while NeedsTicks(), and once after.
    void OnPositionTick();
    /// An item is loaded, a disc awaited, or files are being added.
    bool NeedsTicks() const;
    /// The window has a new size in logical pixels, by the user's hand or by the settings.
    void WindowResized(int width, int height);
    /// A text has come from a later start; `done` is called when its file is open or refused.
    void ReceiveText(const std::string& text, platform::HandOverDone done);

    /// Which ways the user knows.
    void SetFamiliarWays(bool on);
    const zentaro::Ways& Ways() const { return m_settings.ChosenWays(); }
    void ClearHistory() { m_history.Clear(); }
    const PlayerSettings& Settings() const { return m_settings.Settings(); }
    Transport& Transporting() { return m_transport; }
    const TransportState& State() const { return m_transport.State(); }
    Library& Files() { return m_library; }
    const Library& Files() const { return m_library; }
    Playlist& Entries() { return m_library.Entries(); }
    const Playlist& Entries() const { return m_library.Entries(); }
    Sequencer& Sequence() { return m_sequencer; }
    const Sequencer& Sequence() const { return m_sequencer; }
    ListEditor& Editing() { return m_editor; }
    PlayTools& Tools() { return m_tools; }
    const PlayTools& Tools() const { return m_tools; }
    Memory& Remembering() { return m_memory; }
    const Memory& Remembering() const { return m_memory; }
    DiscSession& Discs() { return m_discs; }
    WindowControl& Window() { return m_window; }
    KeyMap& Keys() { return m_keys; }
    OwnSettings& Own() { return m_world.own; }
    OwnChoices& Choices() { return m_choices; }
    const OwnChoices& Choices() const { return m_choices; }
    Menus& BothMenus() { return m_menus; }
    Associations& Types() { return m_associations; }
    const PlayerFace& Face() const { return m_face; }

private:
    void LoadConfigurations();
    void ApplyWays();
    void OpenStartupFile();
    void ReadyStartupFile(const StartupRequest& request);
    /// The files behind the first one, of a line that names several.
    std::vector<std::string> FurtherFiles() const;
    StartupRequest RequestOf(const std::string& commandLine) const;
    void StartIsOver();

    void MediaControlsSet(bool enabled) override;
    void RateChanged(const RateChange& change) override;
    void TransportChanged() override;

    void ShowNotice(const Notice& notice, std::function<void()> closed) override;
    void PlayItem(int index, bool playFlag) override { m_sequencer.PlayChosen(index, playFlag); }
    bool PlaysListedInPlace() const override { return Ways().ListedPlaysInPlace(); }
    bool GathersFailures() const override { return Ways().FailuresAreGathered(); }
    void ShowFailures(int failed, int total) override;
    std::int32_t PlayMode() const override { return Settings().PlayMode; }
    void EntryAdded() override;
    void AddProgressChanged() override;
    void ThumbnailChanged() override;
    void AskForFiles(const std::string& title, const std::string& filter,
        std::function<void(std::vector<std::string>)> chosen) override;
    void FilesFound(const FoundFiles& found) override;
    void RunInBackground(std::function<std::function<void()>()> work) override { m_world.runInBackground(work); }

    PlayerWorld m_world;
    PlayerFace m_face;
    Menus m_menus;
    KeyMap m_keys;
    OwnChoices m_choices;
    SettingsStore m_settings;
    Transport m_transport;
    Library m_library;
    WindowControl m_window;
    History m_history;
    DiscSession m_discs;
    Sequencer m_sequencer;
    ListEditor m_editor;
    Memory m_memory;
    PlayTools m_tools;
    SingleInstance m_instance;
    Associations m_associations;
    bool m_starting = true; // the window's geometry is not recorded until the start is over
    bool m_isExpected = false;
    bool m_wasAdding = false;
};

} // namespace zentaro
