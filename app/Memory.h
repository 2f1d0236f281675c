#pragma once

#include "app/ListMemory.h"
#include "app/OwnChoices.h"
#include "app/PlaceBook.h"
#include "app/PlayerFace.h"
#include "app/Present.h"
#include "app/Sequencer.h"
#include "app/StateFiles.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zentaro {

/// Remembers over the end of the player, and over its death, what was in the list and how far each film was seen. It
/// offers that, and does nothing by itself but to bring the volume back. What it keeps lies in files of its own.
class Memory {
public:
    struct Needs {
        std::string folder; ///< with a trailing separator
        char separator = '/';
        std::function<void(std::chrono::milliseconds, std::function<void()>)> after;
        std::function<void(std::function<std::function<void()>()>)> runInBackground;
        /// Whether a path lies on a disc that is taken out.
        std::function<bool(const std::string& path)> isRemovable = [](const std::string&) { return false; };
    };
    struct Rooms {
        OwnChoices& choices;
        SettingsStore& settings;
        Transport& transport;
        Library& library;
        Sequencer& sequencer;
        const PlayerFace& face;
    };
    Memory(Needs needs, Rooms rooms);

    /// Reads what was kept; from now on it is kept up to date. The list comes beside the window.
    void Load();
    /// The player may have changed: what is new will be kept within a few seconds.
    void Look();
    /// The position timer's tick.
    void Tick();
    /// What is loaded has been played to its end.
    void ItemEnded();
    /// Keeps all that is new before it returns.
    void SaveNow();

    /// What can be brought back into an empty list: "Last time: 12 files, The Long Journey at 0:46:10"; empty for
    /// nothing.
    std::string LastTime() const;
    /// The list of last time, and what was played goes on where it was.
    void BringBack();
    /// Where what plays was left last time; ms, 0 for nowhere.
    double LastPlace() const { return m_item.lastPlace; }
    /// The next item that is opened begins at that time, in ms.
    void ContinueAt(double time) { m_goTo = time; }
    void GoToLastPlace();
    void StartOver();

    bool IsRemembering() const { return m_rooms.choices.Has(Choice::Remembers); }
    /// Off: everything is forgotten, too.
    void SetRemembering(bool on);
    void Forget(const std::string& path);
    void ForgetAll();
    bool IsFolderForgotten(const std::string& path) const { return m_places.IsNeverRemembered(path); }
    /// Of the files in this one's folder nothing is remembered from now on, or all again.
    void ForgetFolderOf(const std::string& path, bool never);

private:
    struct Dirt {
        bool list = false, noList = false, places = false, present = false;
        bool IsAny() const { return list || noList || places || present; }
    };
    bool MayKeep(const std::string& path) const;
    void Begin(Engine& engine);
    void KeepPlace(Engine& engine);
    void KeepTracks(Engine& engine);
    void ShowSeenFrom(int first);
    std::vector<StateFiles::File> TakeDirt();

    /// The item that is loaded.
    struct Item {
        std::uint64_t generation = 0;
        double lastPlace = 0;          // ms
        double oldest = 0;             // ms: what plays before it does not count yet
        int audio = Place::kNotChosen; // the tracks it began with
        int subtitle = Place::kNotChosen;
    };
    /// What the files and rows show already.
    struct Shown {
        std::uint64_t revision = 0;
        int count = 0;
        int builds = 0;
        Present present;
    };

    Needs m_needs;
    Rooms m_rooms;
    StateFiles m_files;
    PlaceBook m_places;
    RememberedList m_last;
    Present m_present;
    Dirt m_dirt;
    Item m_item;
    Shown m_shown;
    std::optional<double> m_goTo; // ms, as soon as the item plays
    bool m_isLoaded = false;
    std::shared_ptr<bool> m_isAlive;
};

} // namespace zentaro
