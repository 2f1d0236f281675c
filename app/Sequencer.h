#pragma once

#include "app/DiscSession.h"
#include "app/History.h"
#include "app/WindowControl.h"
#include "platform/Power.h"
#include "playback/AfterPlay.h"

#include <cstdint>
#include <optional>

namespace zentaro {

/// The 16-bit number by which an item is played; -1, which plays nothing, for an index that does not fit.
std::int16_t ItemNumber(int index);

/// What plays after what: the entries one by one, by the user's choice and by the modes, and what comes at the end.
class Sequencer {
public:
    struct Rooms {
        SettingsStore& settings;
        Transport& transport;
        Library& library;
        DiscSession& discs;
        Menus& menus;
        History& history;
        WindowControl& window;
        platform::Power& power;
        const PlayerFace& face;
    };
    explicit Sequencer(Rooms rooms);

    const AfterPlay& AfterPlaying() const { return m_afterPlay; }

    /// Plays a playlist entry in a fresh engine; an index outside the list does nothing.
    void PlayItem(std::int16_t index, bool fullScreen);
    /// As above for an entry that was just chosen: failures of before do not count any more.
    void PlayChosen(int index, bool fullScreen);
    /// Selects an entry and plays it.
    void PlayEntry(int index);
    /// Plays the selected entry from its beginning, or the loaded disc; asks for files while the list is empty.
    void CMDPlayClick();
    /// Pauses, goes on, or plays the selected entry where nothing is loaded.
    void PlayOrPause();
    /// Pauses or goes on; asks for files while the list is empty.
    void PlayPause();
    void cmdNextClick();
    void cmdPreviousClick();
    void ListClicked();
    /// `row`: FancyListItems::kNone below the last.
    void ListRightPressed(int row);
    void ListDoubleClicked();

    void PBNormal() { SetPlayMode(kPlayNormal); }
    void PBCont() { SetPlayMode(kPlayContinuous); }
    void PBShuffle() { SetPlayMode(kPlayShuffle); }
    /// kPlayNormal, kPlayContinuous or kPlayShuffle: the order is built anew.
    void SetPlayMode(std::int32_t mode);
    /// kNoRepeat, kRepeatSingle or kRepeatAll. The order stays.
    void SetRepeatMode(std::int32_t mode);
    /// Chooses what happens when playback has run out, see AfterPlay.
    void DoAfter(std::int16_t action);
    void DoAfterFinishPlay();
    /// What is loaded is the last for now, whatever the modes say.
    void StopAfterThis(bool on) { m_stopsAfterThis = on; }
    bool StopsAfterThis() const { return m_stopsAfterThis; }
    /// The loaded file has ended, `failed` without ever having played.
    void ItemEnded(bool failed);
    /// To be asked again and again while something plays: shortly before its end what follows is made ready.
    void LookAhead();

private:
    enum class Way { ByTheModes, Forward, Back };

    /// What plays next is the user's choice: failures of before do not count, and nothing lies over the film.
    void Chosen(Way way);
    void PlaySelected();
    void StepOn();
    /// What the end of an item asks for; the after-play action only when it `hasPlayed`.
    std::int32_t RepeatModeAtEnd() const;
    bool IsNearEnd() const;
    std::optional<ExpectedItem> WhatFollows();
    void Follow(const EndOfItem& next, bool hasPlayed);
    void ItemFailed();
    bool IsRoundOfFailures() const;
    void GoIdle();
    const Ways& Known() const { return m_rooms.settings.ChosenWays(); }
    Playlist& Entries() { return m_rooms.library.Entries(); }

    Rooms m_rooms;
    AfterPlay m_afterPlay;
    bool m_stopsAfterThis = false;
    int m_failuresInRow = 0; // items that ended without having played
    /// Where the user is on the way to: what cannot be played is passed in that direction.
    Way m_way = Way::ByTheModes;
};

} // namespace zentaro
