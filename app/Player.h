#pragma once

#include "app/History.h"
#include "app/PlayerScreen.h"
#include "app/StartUp.h"
#include "assoc/ModAssoc.h"
#include "assoc/ModIcons.h"
#include "base/PlayerSettings.h"
#include "inspect/Inspection.h"
#include "platform/Drives.h"
#include "platform/HandOver.h"
#include "platform/Power.h"
#include "platform/StringStore.h"
#include "playback/AfterPlay.h"
#include "playback/DiscParts.h"
#include "playback/DriveEnumerator.h"
#include "playback/EngineHost.h"
#include "playback/EngineOptions.h"
#include "playback/HeldButtons.h"
#include "playback/PlaybackRate.h"
#include "playback/PositionTick.h"
#include "playback/SeekBar.h"
#include "playback/VolumeSlider.h"
#include "playlist/AddQueue.h"
#include "playlist/Playlist.h"
#include "shell/ClassicTree.h"
#include "shell/CommandTree.h"
#include "shell/SettingsPages.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace zentaro {

/// How a process meets the players that were started before it.
struct HandOverService {
    std::function<Result<std::unique_ptr<platform::HandOverEnds>>()> listen;
    std::function<bool(const std::string& handle)> isAlive;
    std::function<bool(const std::string& handle, const std::string& text)> send;
    std::function<std::unique_ptr<platform::HandOverLock>()> lock;
};

/// Where types of files are given to this program.
struct AssociationService {
    platform::AssociationShell* shell = nullptr; ///< without one, types are left alone
    std::string programPath;                     ///< as of platform::ShortProgramPath()
    std::string programFolder;                   ///< with a trailing separator
    ModIcons::Loaders icons;
    /// Runs the work once a start has done all that the user waits for.
    std::function<void(std::function<void()>)> later;
};

/// A row of the options list.
struct AssociationChoice {
    std::string listText;
    Picture icon; ///< of the program that opens the type now
};

/// What a player needs from the world.
struct PlayerWorld {
    PlayerScreen& screen;
    EngineFactory& engines;
    InspectionRunner& inspections; ///< results come back through Player::InspectionCompleted
    platform::StringStore& store;
    platform::Power& power;
    HandOverService handOver;
    RandomSource random; ///< uniform in [0, 1)
    std::function<bool(const std::string& path)> fileExists;
    std::function<void()> endProcess;
    std::string settingsFolder; ///< with a trailing separator
    char separator = '/';
    AssociationService associations = {};
    /// The answer comes back through Player::DrivesFound, soon or after many seconds.
    std::function<void()> askForDrives = [] {};
    /// What the list shows for a disc.
    std::function<Picture()> readDiscPicture = [] { return Picture(); };
    /// Holds the screen saver and sleep off, or lets them come again. Told at every tick.
    std::function<void(bool held)> holdOffSleep = [](bool) {};
};

/// The 16-bit number by which an item is played; -1, which plays nothing, for an index that does not fit.
std::int16_t ItemNumber(int index);

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
    /// Takes and releases types of files as the settings say; for start-up and when options have been chosen.
    void ApplyAssociations();
    /// The 24 rows, by index of the flags in the settings.
    std::vector<AssociationChoice> AssociationChoices();

    /// Does what the command of this key is for. A key that no item has, and an item that is disabled or hidden, do
    /// nothing.
    void RunCommand(std::string_view key);
    /// Shows the list of DVD drives.
    void cmdDVDClick();
    /// Asks for files to add; the commands on the list can be used when there is one.
    void AddVideoFile();
    /// Shows the options; the window is not held on top until they are closed.
    void ShowOptions();
    /// Takes over what the options dialog holds, while it is open.
    void CommitOptions(const SettingsPages& pages);
    void ShowAbout();
    /// The options or the about box have been closed.
    void DialogClosed();
    void ShowHelp() { m_world.screen.ShowHelp(); }
    void Exit() { m_world.screen.CloseWindow(); }

    /// Adds one file and, when `playNow`, plays it; returns when that is done, unless another file is just being taken
    /// into the list: then it follows that one. `playFlag` asks for full screen.
    void LoadThumb(const std::string& title, const std::string& path, bool playFlag, bool playNow);
    /// Adds files while the window stays usable.
    void AddFiles(std::vector<AddRequest> requests);
    void CancelAdding() { m_adding.Cancel(); }
    void InspectionCompleted(int ticket, Inspection inspection);
    /// Asks for files and adds them; the first one plays unless `addOnly`.
    void OpenFiles(bool addOnly);
    /// Files or folders were dropped: those that are no media are left out.
    void DropOnList(const std::vector<std::string>& paths);
    /// As above, and the first one plays.
    void DropOnVideo(const std::vector<std::string>& paths);
    void ListClicked();
    /// A key of the list.
    void MoveSelection(SelectionMove move) { m_playlist.MoveSelection(move, m_settings.PlayMode); }
    void ListDoubleClicked();
    void RemoveSelected();
    void RemoveAll();

    /// Plays a playlist entry in a fresh engine; an index outside the list does nothing.
    void PlayItem(std::int16_t index, bool fullScreen);
    /// Selects an entry and plays it.
    void PlayEntry(int index);
    void CMDPlayClick();
    /// Pauses, goes on, or plays the selected entry where nothing is loaded.
    void PlayOrPause();
    /// Pauses or goes on; asks for files while the list is empty.
    void PlayPause();
    /// The list lies there from now on, also after a restart.
    void DockPlaylist(PlaylistDock position);
    void CMDPauseClick();
    void cmdStopClick();
    void cmdffMouseDown();
    void cmdffMouseUp();
    void RewindPressed();
    void RewindReleased();
    /// While rewind is held, every 10 ms.
    void OnRewindTick();
    /// The window has lost the focus: what is held counts as released.
    void ReleaseHeldButtons();
    /// 0.0 to 1.0; nothing while nothing is loaded.
    void Seek(double position);
    /// ms, back when below 0.
    void SeekBy(int milliseconds);
    void SetVolume(int percent);
    void IncreaseRate();
    void DecreaseRate();
    /// Nothing while nothing is loaded.
    void ResetRate();
    /// Chooses what happens when playback has run out, see AfterPlay.
    void DoAfter(std::int16_t action);
    void DoAfterFinishPlay();
    void cmdMuteClick();
    void cmdFulScreenClick();
    /// Saves the present picture of the video in the item's snapshot folder and says so. Nothing without a video.
    void TakeSnapshot();
    bool CanTakeSnapshot() const { return m_mediaControlsEnabled && m_hasVideoOutput; }
    /// Asks for a file of subtitles and shows it with the video.
    void LoadSubtitleFile();
    /// By what the window shows.
    void ToggleFullScreen();
    void LeaveFullScreen();
    /// Shows or hides the list.
    void cmdPlayListClick();
    void cmdNextClick();
    void cmdPreviousClick();
    void PBNormal() { SetPlayMode(kPlayNormal); }
    void PBCont() { SetPlayMode(kPlayContinuous); }
    void PBShuffle() { SetPlayMode(kPlayShuffle); }
    /// kNoRepeat, kRepeatSingle or kRepeatAll. The order stays.
    void SetRepeatMode(std::int32_t mode);
    /// The position timer's tick, every 500 ms.
    void OnPositionTick();

    /// Asks for the drives, so that the menus come to list them: before they are shown, and by the watcher.
    void mnuOpenDVD_Click() { m_world.askForDrives(); }
    void DrivesFound(std::vector<platform::OpticalDrive> drives);
    /// Replaces the playlist with the disc of that entry of the classic menu, and plays it.
    void dvdsList_Click(int index);
    /// The watcher's timer is to run, every 1000 ms.
    bool IsWatchingDiscs() const { return m_discWatcher.IsOn(); }
    void OnDVDTick();
    /// False while no menu of a disc is shown: then the key means what it means elsewhere.
    bool NavigateDisc(DiscKey key);
    PartChoice Titles() const;
    PartChoice Chapters() const;
    void SetTitle(int index);
    void SetChapter(int index);

    /// A text has come from a later start.
    void ReceiveText(const std::string& text);
    /// The window has a new size in logical pixels, by the user's hand or by the settings.
    void WindowResized(int width, int height);

    const PlayerSettings& Settings() const { return m_settings; }
    /// The commands by key: what they are called, what is enabled, checked and shown.
    CommandTree& SmartMenuXP1() { return m_commands; }
    /// The menus of the tray, the playlist and the DVD button.
    ClassicTree& ClassicMenus() { return m_classic; }
    Playlist& Entries() { return m_playlist; }
    EngineHost& Host() { return m_host; }
    /// Null while nothing is loaded.
    Engine* LoadedEngine() const;
    const InspectionState& Inspected() const { return m_inspected; }
    bool MediaControlsEnabled() const { return m_mediaControlsEnabled; }
    SeekBar& Seeking() { return m_seekBar; }
    VolumeSlider& Loudness() { return m_volumeSlider; }
    const PlaybackRate& Rate() const { return m_rate; }
    const AfterPlay& AfterPlaying() const { return m_afterPlay; }
    const DriveEnumerator& Drives() const { return m_drives; }
    bool IsRewinding() const { return m_held.IsRewinding(); }

private:
    /// What adding does to the player.
    class Adding : public AddQueueHost {
    public:
        explicit Adding(Player& player)
            : m_player(player)
        {
        }
        void ShowNotice(const Notice& notice) override { m_player.m_world.screen.ShowNotice(notice); }
        void PlayItem(int index, bool playFlag) override
        {
            m_player.m_failuresInRow = 0;
            m_player.PlayItem(ItemNumber(index), playFlag);
        }
        std::int32_t PlayMode() const override { return m_player.m_settings.PlayMode; }
        void EntryAdded() override { m_player.EntryAdded(); }
        void InspectionTaken(const Inspection& inspection) override
        {
            m_player.m_inspected.TakeOver(
                { inspection.ok, inspection.errorText, inspection.mediaInfo, inspection.thumbnail, {} });
        }
        void AddProgressChanged(const AddProgress& progress) override
        {
            m_player.m_world.screen.ShowAddProgress(progress);
        }

    private:
        Player& m_player;
    };

    /// The DVD entries of both menu trees.
    class DiscEntries : public DvdMenus {
    public:
        explicit DiscEntries(Player& player)
            : m_player(player)
        {
        }
        void SetCaption(const std::string& key, const std::string& caption) override
        {
            m_player.m_commands.SetCaption(key, caption);
        }
        void SetEnabled(const std::string& key, bool enabled) override { m_player.m_commands.SetEnabled(key, enabled); }
        void SetVisible(const std::string& key, bool visible) override { m_player.m_commands.SetVisible(key, visible); }
        int ClassicCount() const override { return m_player.m_classic.Count(kName); }
        void SetFirstClassic(const std::string& caption, bool enabled) override
        {
            m_player.m_classic.SetCaption(kName, 0, caption);
            m_player.m_classic.SetEnabled(kName, 0, enabled);
        }
        void LoadClassic(const std::string& caption) override { m_player.m_classic.Load(kName, caption); }
        void UnloadLastClassic() override { m_player.m_classic.UnloadLast(kName); }

    private:
        static constexpr const char* kName = "dvdsList";
        Player& m_player;
    };

    void EntryAdded();
    void PlayHistoryItem(int slot);
    bool BecomePlayer();
    void Publish();
    /// The ticket of the file while there is one.
    std::optional<int> OpenStartupFile();
    AddRequest RequestFromOutside(const std::string& path) const;
    void WaitForFile(int ticket);
    void UseSettings(const PlayerSettings& settings);
    void AddPaths(const std::vector<std::string>& paths, bool playFirst);
    void SetPlayMode(std::int32_t mode);
    void StepTo(std::optional<int> index);
    void PlaySelected();
    void ItemEnded(bool failed);
    void ApplyRate(const RateChange& change);
    void SetEngineRate(std::optional<double> rate);
    void ShowRateLabel(bool isLoading);
    void NoteVideoOutput(bool hasVideoOutput);
    bool IsRoundOfFailures() const;
    bool IsDiscLoaded() const;
    static bool IsDiscLocation(const std::string& path);
    void StartNewDiscs();
    void PlayDisc(int index);
    /// False when the disc is not to be played any more.
    bool WaitBeforeDisc();
    void ForgetDiscStart();
    void PlayLoadedDisc();
    void DiscEnded(bool failed);
    void DiscFailed();
    void EnableMediaControls(bool enabled);
    void ShowCaption();
    PlaylistDock StoredDock() const;
    void ApplyAssociationsLater();
    std::string ConfigPath() const;

    PlayerWorld m_world;
    PlayerSettings m_settings;
    std::optional<ModAssoc> m_modAssoc;
    bool m_associationsPending = false;
    EngineOptions m_options;
    CommandTree m_commands;
    ClassicTree m_classic;
    History m_history;
    EngineHost m_host;
    Playlist m_playlist;
    Adding m_addingHost{ *this };
    AddQueue m_adding;
    InspectionState m_inspected;
    StartupRequest m_startup;
    std::unique_ptr<platform::HandOverEnds> m_ends;
    std::string m_currentItemPath;
    SeekBar m_seekBar;
    VolumeSlider m_volumeSlider;
    PlaybackRate m_rate;
    HeldButtons m_held;
    AfterPlay m_afterPlay;
    DiscEntries m_discEntries{ *this };
    DriveEnumerator m_drives{ m_discEntries };
    DiscWatcher m_discWatcher;
    std::string m_currentDiscRoot;
    std::string m_discName; // for the folder of its snapshots
    bool m_dvdMode = false; // the engine was given a disc that the drive list names
    bool m_isStartingDisc = false;
    int m_discStarts = 0;
    bool m_starting = false;
    bool m_replaceOnOpen = true;
    bool m_mediaControlsEnabled = false;
    bool m_hasVideoOutput = false;
    bool m_ended = false;
    bool m_selectsFirstAdded = false; // files of "AddVideoFile" are on their way
    int m_failuresInRow = 0;          // items that ended without having played
};

} // namespace zentaro
