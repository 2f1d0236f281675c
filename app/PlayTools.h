#pragma once

#include "app/Memory.h"
#include "playback/AbLoop.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace zentaro {

/// Small helps around what plays: single pictures, a part again and again, a time to go to, delays, more sound than
/// there is, an end by the clock.
class PlayTools {
public:
    struct Rooms {
        EngineFactory& engines;
        Transport& transport;
        Library& library;
        Sequencer& sequencer;
        Memory& memory;
        const PlayerFace& face;
        std::function<void(std::chrono::milliseconds, std::function<void()>)> after;
    };
    explicit PlayTools(Rooms rooms);

    /// Holds the item, and shows its next picture.
    void NextFrame();
    /// Sets the beginning of a part, then its end, then ends it.
    void MarkLoop();
    /// The position timer's tick.
    void Tick();
    void AskForTime();
    /// ms, later for more than 0.
    void ShiftSound(int milliseconds);
    void ShiftSubtitles(int milliseconds);
    /// In percent of the usual size, more or less by this. What plays is opened anew for it.
    void ScaleSubtitles(int percent);
    /// Above the full volume, up to Transport::kMostBoost.
    void Boost(int percent);
    /// What stands in place of the time: that, or what is left of it.
    std::string TimeText() const;
    bool ShowsRemaining() const { return m_showsRemaining; }
    void ToggleRemaining();
    /// Playing stops after a time: each call chooses the next one of some, the last of which is never.
    void NextSleepTime();
    /// Minutes that were chosen; 0 for none.
    int SleepTime() const { return m_sleepTime; }

private:
    void GoBackAt(double end);
    void Note(const std::string& text) { m_rooms.face.window->ShowNote(text); }

    Rooms m_rooms;
    AbLoop m_loop;
    std::uint64_t m_generation = 0; // of the item that the loop belongs to
    int m_subtitleScale = 100;
    int m_sleepTime = 0;
    bool m_showsRemaining = false;
    std::shared_ptr<int> m_sleep; // the one that counts
    std::shared_ptr<bool> m_isAlive;
};

} // namespace zentaro
