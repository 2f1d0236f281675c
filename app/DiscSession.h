#pragma once

#include "app/Menus.h"
#include "app/PlayerFace.h"
#include "app/SettingsStore.h"
#include "platform/Drives.h"
#include "playback/DiscParts.h"
#include "playback/DriveEnumerator.h"
#include "playback/Transport.h"
#include "playlist/Library.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zentaro {

class WindowControl;

/// What discs need from the machine.
struct DiscService {
    /// The answer comes back through DiscSession::DrivesFound, soon or after many seconds.
    std::function<void()> askForDrives = [] {};
    /// What the list shows for a disc.
    std::function<Picture()> readPicture = [] { return Picture(); };
    /// The machine tells of discs that come, through DiscSession::OnDVDTick.
    bool isTold = false;
    /// Calls back after that time, on this thread.
    std::function<void(std::chrono::milliseconds, std::function<void()>)> after;
};

/// Video discs: the drives in the menus, the disc that plays, its menus and parts.
class DiscSession : private DvdMenus {
public:
    DiscSession(DiscService service, SettingsStore& settings, Transport& transport, Library& library, Menus& menus,
        WindowControl& window, const PlayerFace& face);

    /// A disc's location, as an engine and a playlist entry have it.
    static bool IsDiscLocation(const std::string& path) { return path.starts_with("dvd://"); }
    /// What the engine is told of an entry of the list, a disc or a file.
    static TransportItem ItemOf(const PlaylistEntry& entry);

    /// Asks for the drives, so that the menus come to list them: before they are shown, and by the watcher.
    void mnuOpenDVD_Click() { m_service.askForDrives(); }
    void DrivesFound(std::vector<platform::OpticalDrive> drives);
    /// Replaces the playlist with the disc of that entry of the classic menu, and plays it.
    void dvdsList_Click(int index);
    /// The loaded disc plays, from its beginning or on from where it was.
    void Play();
    /// True from the choice of a disc until its engine is told to play.
    bool IsStarting() const;
    /// The disc has played to its end, or never began to.
    void Ended(bool failed);

    bool IsWatching() const { return m_watcher.IsOn(); }
    void Watch();
    /// The watcher's timer is to run, every 1000 ms: nobody tells of discs that come.
    bool IsPolling() const { return m_watcher.IsOn() && !m_service.isTold; }
    /// The timer's tick, or the word that drives have changed.
    void OnDVDTick();

    /// False while no menu of a disc is shown: then the key means what it means elsewhere.
    bool Navigate(DiscKey key);
    PartChoice Titles() const;
    PartChoice Chapters() const;
    void SetTitle(int index);
    void SetChapter(int index);
    /// To the next chapter (1) or back (-1), as ChapterAfterStep; its caption, empty when there is none.
    std::string StepChapter(int direction);

private:
    /// A disc that the engine waits for.
    struct Start {
        std::uint64_t generation = 0;
        std::function<void()> then;
    };

    void StartNewDiscs(int from);
    void PlayDisc(int index, std::function<void()> then);
    void Begin();
    void Failed();
    void ListDisc(const std::string& caption, const std::string& location);

    void SetCaption(const std::string& key, const std::string& caption) override;
    void SetEnabled(const std::string& key, bool enabled) override;
    void SetVisible(const std::string& key, bool visible) override;
    int ClassicCount() const override;
    void SetFirstClassic(const std::string& caption, bool enabled) override;
    void LoadClassic(const std::string& caption) override;
    void UnloadLastClassic() override;

    DiscService m_service;
    SettingsStore& m_settings;
    Transport& m_transport;
    Library& m_library;
    Menus& m_menus;
    WindowControl& m_window;
    const PlayerFace& m_face;
    DriveEnumerator m_drives{ *this };
    DiscWatcher m_watcher;
    std::string m_currentDiscRoot;
    std::shared_ptr<Start> m_start; // null while no disc is awaited
};

} // namespace zentaro
